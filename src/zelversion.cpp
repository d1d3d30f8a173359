#include "zelversion.h"

void zelkit_version(int* major, int* minor, int* patch)
{
    if (major)
        *major = 0;
    if (minor)
        *minor = 18;
    if (patch)
        *patch = 0;
}

const char* zelkit_version_str()
{
    return "0.18.0";
}
