/* The header must compile for C, and its functions link from there; this one is called by a test. */

#include <orvmathfunc/orvmathfunc.h>

double distanceFromC(void);

double distanceFromC(void) {
    return GetDistance(0, 0, 3, 4);
}
