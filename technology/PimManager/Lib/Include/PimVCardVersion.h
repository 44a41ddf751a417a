/// \file
/// The version of the component whose headers are used: the one place in which it is written.
///
/// \code
/// #if PIMVCARD_VERSION_NUMBER < PIMVCARD_MAKE_VERSION( 1, 2, 0 )
/// // what version 1.2.0 brought must do without
/// #endif
/// \endcode
///
/// It counts releases. Which shared libraries can take the place of which is told by the number at the end of their
/// soname, which grows less often.

#pragma once

/// Grows with what breaks programs.
#define PIMVCARD_VERSION_MAJOR 1
/// Grows with what is new.
#define PIMVCARD_VERSION_MINOR 0
/// Grows with corrections.
#define PIMVCARD_VERSION_PATCH 0

/// A version as one number, to be compared with others. Minor and patch are below 256.
#define PIMVCARD_MAKE_VERSION( a_major, a_minor, a_patch ) ( ( (a_major)*65536 ) + ( (a_minor)*256 ) + ( a_patch ) )

/// This version as one number.
#define PIMVCARD_VERSION_NUMBER                                                                                        \
    PIMVCARD_MAKE_VERSION( PIMVCARD_VERSION_MAJOR, PIMVCARD_VERSION_MINOR, PIMVCARD_VERSION_PATCH )

/// Three numbers as the text of a version: numbers themselves, not macros that stand for them.
#define PIMVCARD_QUOTE_VERSION( a_major, a_minor, a_patch ) #a_major "." #a_minor "." #a_patch

/// The same, for macros that stand for the numbers.
#define PIMVCARD_QUOTE_VERSION_OF( a_major, a_minor, a_patch ) PIMVCARD_QUOTE_VERSION( a_major, a_minor, a_patch )

/// This version as a literal, such as `"1.4.2"`.
#define PIMVCARD_VERSION_STRING                                                                                        \
    PIMVCARD_QUOTE_VERSION_OF( PIMVCARD_VERSION_MAJOR, PIMVCARD_VERSION_MINOR, PIMVCARD_VERSION_PATCH )
