#pragma once

// Drawing a device context's path, or a line of the caller's own, in a pattern: the path's copy, the patterns
// and the walk.

#include "OrvPathData.h"
#include "OrvDrawBasicDash.h"
#include "OrvOnOffDash.h"
#include "OrvDrawDashRailway.h"
#include "OrvDrawDashWeaver.h"
#include "OrvDrawCurve.h"
