#pragma once

// Fonts and texts.

#include <orvfc/text/OrvDrawText.h>
#include <orvfc/text/OrvFont.h>
