/// \file
/// The macro that marks the exported classes and functions of the shared library.
///
/// \code
/// class PIMPHONEBOOK_EXPORT PimPhoneBookExported
/// {
/// };
/// \endcode
///
/// The macro is the same for building and for using the library, shared or static. No other macro has to be defined.

#pragma once

/// Write it before the name of a class and before the return type of a function.
#define PIMPHONEBOOK_EXPORT __attribute__( ( visibility( "default" ) ) )
