#pragma once

// Fonts and texts.

#include <orvfc/text/OrvFont.h>
