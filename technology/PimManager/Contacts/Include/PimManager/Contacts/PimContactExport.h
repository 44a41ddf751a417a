/// \file
/// The macro that marks the exported classes and functions of the shared library. Sources are compiled with
/// -fvisibility=hidden, so a class or function without the macro is private to the library.
///
/// \code
/// class PIMCONTACT_EXPORT PimContactExported
/// {
/// };
/// \endcode
///
/// The macro is the same for building and for using the library, shared or static. No other macro has to be defined.

#pragma once

/// Write it before the name of a class and before the return type of a function.
#define PIMCONTACT_EXPORT __attribute__( ( visibility( "default" ) ) )
