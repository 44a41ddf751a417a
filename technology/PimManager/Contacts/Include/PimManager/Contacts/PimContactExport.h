/// \file
/// The macro that marks what the shared library exports. Sources are compiled with -fvisibility=hidden, so a class or
/// function without the macro is private to the library.
///
/// \code
/// class PIMCONTACT_EXPORT PimContactExported
/// {
/// };
/// \endcode
///
/// The macro is the same for building and for using the library, shared or static. Nothing has to be defined first.

#pragma once

/// Stands before the name of a class and before the return type of a function.
#define PIMCONTACT_EXPORT __attribute__( ( visibility( "default" ) ) )
