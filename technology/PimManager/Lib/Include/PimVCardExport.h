/// \file
/// Marks what the shared libraries export. Sources are compiled with -fvisibility=hidden, so a class or function
/// without the mark is private to its library, and programs cannot depend on it.
///
/// \code
/// class PIMVCARD_EXPORT PimVCardShown
/// {
/// };
/// PIMVCARD_EXPORT void Show( const PimVCardShown& a_shown );
/// \endcode
///
/// The mark is the same in a library and in the programs that use it, and also for static libraries. Nothing has to be
/// defined before the headers are included.

#pragma once

/// Place it before the name of a class, or before the return type of a function.
#define PIMVCARD_EXPORT __attribute__( ( visibility( "default" ) ) )
