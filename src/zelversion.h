/*!
 * \file zelversion.h
 * \brief The version of the library that a program runs with.
 *
 * Both functions can be called from C and looked up by their plain names.
 */
#ifndef ZELVERSION_H
#define ZELVERSION_H

#include "zelexport.h"

extern "C" {

/*!
 * Writes the major, minor and patch number of the library through the three pointers. A null pointer is
 * skipped, so any of the numbers may be asked for alone.
 */
ZELKIT_EXPORT void zelkit_version(int* major, int* minor, int* patch);

/*!
 * Returns the version as text, for example "0.18.0". The text is constant, belongs to the library and is the
 * same pointer at every call.
 */
ZELKIT_EXPORT const char* zelkit_version_str();
}

#endif
