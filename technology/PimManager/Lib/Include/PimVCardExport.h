/// \file
/// The mark of what the shared libraries show. Sources are compiled with -fvisibility=hidden, so a class or function
/// without the mark is private to its library, and programs cannot come to depend on it.
///
/// \code
/// class PIMVCARD_EXPORT PimVCardShown
/// {
/// };
/// PIMVCARD_EXPORT void Show( const PimVCardShown& a_shown );
/// \endcode
///
/// The mark is the same for who builds a library and for who uses it, and for static libraries, so nothing has to be
/// defined before the headers are included.

#pragma once

/// Stands before the name of a class and before the return type of a function.
#define PIMVCARD_EXPORT __attribute__( ( visibility( "default" ) ) )
