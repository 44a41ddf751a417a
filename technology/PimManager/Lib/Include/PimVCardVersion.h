/// \file
/// The version of the component to which the headers belong. It is defined only here.
///
/// \code
/// #if PIMVCARD_VERSION_NUMBER < PIMVCARD_MAKE_VERSION( 1, 2, 0 )
/// // what version 1.2.0 brought must do without
/// #endif
/// \endcode
///
/// The version counts releases. The number at the end of the soname says which shared libraries can replace each other.
/// It increases less often.

#pragma once

/// Increases with changes that break programs.
#define PIMVCARD_VERSION_MAJOR 1
/// Increases with new features.
#define PIMVCARD_VERSION_MINOR 0
/// Increases with corrections.
#define PIMVCARD_VERSION_PATCH 0

/// A version as one number, for comparisons. Minor and patch are below 256.
#define PIMVCARD_MAKE_VERSION( a_major, a_minor, a_patch ) ( ( (a_major)*65536 ) + ( (a_minor)*256 ) + ( a_patch ) )

/// This version as one number.
#define PIMVCARD_VERSION_NUMBER                                                                                        \
    PIMVCARD_MAKE_VERSION( PIMVCARD_VERSION_MAJOR, PIMVCARD_VERSION_MINOR, PIMVCARD_VERSION_PATCH )

/// Three numbers as the text of a version. The arguments must be numbers, not macros.
#define PIMVCARD_QUOTE_VERSION( a_major, a_minor, a_patch ) #a_major "." #a_minor "." #a_patch

/// The same, for macros that expand to numbers.
#define PIMVCARD_QUOTE_VERSION_OF( a_major, a_minor, a_patch ) PIMVCARD_QUOTE_VERSION( a_major, a_minor, a_patch )

/// This version as a literal, such as `"1.4.2"`.
#define PIMVCARD_VERSION_STRING                                                                                        \
    PIMVCARD_QUOTE_VERSION_OF( PIMVCARD_VERSION_MAJOR, PIMVCARD_VERSION_MINOR, PIMVCARD_VERSION_PATCH )
