/// \file
/// Every word, delimiter, token pattern, operation label and error message of the vCard component.
///
/// The preparation of the text, the scanner and the parser use these texts. Two kinds of text are written where they
/// are used: the lines that show state on Qt's debug log (the status of the scanner, a printed property, the parse
/// time), and the characters that no constant names (the backslash, the tab, and the ranges of the token patterns).
///
/// Each constant is defined once in the whole program, and once more in each shared library that hides its own. It is
/// constructed before `main` runs. Within a translation unit that includes this header, the constants are constructed
/// in the order below and before any static object that follows, so such objects may use them:
///
/// \code
/// static const QString s_kBeginLine = s_kBegin + s_kColon + s_kVCard; // "BEGIN:VCARD"
/// \endcode
///
/// No constant allocates memory: each refers to text in the read-only data of the binary. The constants must not be
/// modified, so any thread may read them once `main` has begun.
///
/// Patterns are plain texts in PCRE2 syntax. They are compiled without pattern options, except for
/// `s_kBeginVCardPattern`, which ignores letter case.

#pragma once

#include <QString>

namespace PimManager::vCard
{

// Property, parameter and value words (vCard 2.1; RFC 2426, section 4).

inline const QString s_kBegin = QStringLiteral( "BEGIN" );
inline const QString s_kEnd = QStringLiteral( "END" );
inline const QString s_kN = QStringLiteral( "N" );
inline const QString s_kFn = QStringLiteral( "FN" );
inline const QString s_kNickname = QStringLiteral( "NICKNAME" );
inline const QString s_kPhoto = QStringLiteral( "PHOTO" );
inline const QString s_kAdr = QStringLiteral( "ADR" );
inline const QString s_kXIrmcCallDateTime = QStringLiteral( "X-IRMC-CALL-DATETIME" );
inline const QString s_kEmail = QStringLiteral( "EMAIL" );
inline const QString s_kTel = QStringLiteral( "TEL" );
inline const QString s_kType = QStringLiteral( "TYPE" );
inline const QString s_kValue = QStringLiteral( "VALUE" );
inline const QString s_kEncoding = QStringLiteral( "ENCODING" );
inline const QString s_kBase64 = QStringLiteral( "BASE64" );
/// The short name of the base64 encoding (RFC 2426, section 4).
inline const QString s_kB = QStringLiteral( "b" );
inline const QString s_kUri = QStringLiteral( "URI" );
inline const QString s_kUrl = QStringLiteral( "URL" );
inline const QString s_kQuotedPrintable = QStringLiteral( "QUOTED-PRINTABLE" );
/// A spelling found in real files. The parser does not recognise it as an encoding.
inline const QString s_kQuotedPrintableNoDash = QStringLiteral( "QUOTEDPRINTABLE" );
inline const QString s_kPostal = QStringLiteral( "POSTAL" );
inline const QString s_kHome = QStringLiteral( "HOME" );
inline const QString s_kHome2 = QStringLiteral( "HOME" );
inline const QString s_kVCard = QStringLiteral( "VCARD" );
inline const QString s_kVersion = QStringLiteral( "VERSION" );
inline const QString s_kVersion21 = QStringLiteral( "2.1" );
inline const QString s_kVersion30 = QStringLiteral( "3.0" );
inline const QString s_kVersion40 = QStringLiteral( "4.0" );
inline const QString s_kDataImagePrefix = QStringLiteral( "data:image/" );
inline const QString s_kBase64Marker = QStringLiteral( "base64," );

// Delimiters.

inline const QString s_kSemicolon = QStringLiteral( ";" );
inline const QString s_kEquals = QStringLiteral( "=" );
inline const QString s_kDQuote = QStringLiteral( "\"" );
inline const QString s_kDot = QStringLiteral( "." );
inline const QString s_kColon = QStringLiteral( ":" );
inline const QString s_kComma = QStringLiteral( "," );
inline const QString s_kCrlf = QStringLiteral( "\r\n" );
inline const QString s_kCr = QStringLiteral( "\r" );
inline const QString s_kLf = QStringLiteral( "\n" );
/// Replaces an encoded line break before a soft line break.
inline const QString s_kSpace = QStringLiteral( " " );

// Patterns for values, groups and the whole text.

/// A part of a value that ends with a QUOTED-PRINTABLE soft line break.
inline const QString s_kTrailingEqualsPattern = QStringLiteral( R"(=\z)" );
/// A group prefix with its separator.
inline const QString s_kTrailingDotPattern = QStringLiteral( R"(\.\z)" );
inline const QString s_kTrailingCommasPattern = QStringLiteral( R"(,+\z)" );
/// An encoded CR LF, a soft line break and the blanks that indent the next line.
inline const QString s_kQpSoftBreakPattern = QStringLiteral( R"(=0D=0A=\R[ \t]*)" );
/// A fold: a line break and the white space after it, unless the "=" of a soft line break precedes it.
inline const QString s_kUnfoldPattern = QStringLiteral( R"((?<!=)\R[ \t]+)" );
/// A BEGIN line. The blanks are a space and a real tab character.
inline const QString s_kBeginVCardPattern = QStringLiteral( "BEGIN[ \t]*:[ \t]*VCARD" );
inline const QString s_kBareTypePattern = QStringLiteral( R"(\A(PREF|INTERNET|VOICE)\z)" );
inline const QString s_kXNamePattern = QStringLiteral( R"(\AX\-)" );

// Token patterns. The scanner tests each against one character, or against one escape pair, never against a token.

inline const QString s_kColonPattern = QStringLiteral( R"(\A:\z)" );
inline const QString s_kSemicolonPattern = QStringLiteral( R"(\A;\z)" );
inline const QString s_kDotPattern = QStringLiteral( R"(\A\.\z)" );
inline const QString s_kCommaPattern = QStringLiteral( R"(\A,\z)" );
inline const QString s_kDQuotePattern = QStringLiteral( R"(\A"\z)" );
inline const QString s_kEqualsPattern = QStringLiteral( R"(\A=\z)" );
/// One line-break character: CR, LF, vertical tab, form feed, NEL, U+2028 or U+2029.
inline const QString s_kCrlfPattern = QStringLiteral( R"(\A\R\z)" );
/// One character of a group, a property name, a parameter name or an unquoted parameter value.
inline const QString s_kNamePattern = QStringLiteral( R"(\A[a-zA-Z0-9\-]+\z)" );
/// One character between the quotes of a parameter value. The upper bound is deliberate.
inline const QString s_kQSafeCharPattern = QStringLiteral( R"(\A[ \t\x21\x23-\x7E\x{80}-\x{10FBFF}]\z)" );
/// One value character, or one escape pair. The upper bound and the loose anchors are deliberate. They make no
/// difference for the one or two characters that the scanner tests.
inline const QString s_kValueCharPattern =
    QStringLiteral( R"(\A[ \t\n\x21-\x3A\x3C-\x5B\x5D-\x7E\x{80}-\x{10FBFF}]|(\x5C\x5C)|(\x5C,)|(\x5C;)|(\x5C:)\z)" );
inline const QString s_kBase64CharPattern = QStringLiteral( R"(\A[a-zA-Z0-9+/=]\z)" );

// Labels of the parse operations, as shown in error reports.

inline const QString s_kParseVCardsLabel = QStringLiteral( "ParseVCards()" );
inline const QString s_kParseVCardLabel = QStringLiteral( "ParseVCard()" );
inline const QString s_kParseStartLabel = QStringLiteral( "ParseStart()" );
inline const QString s_kParseEndLabel = QStringLiteral( "ParseEnd()" );
inline const QString s_kParseGroupLabel = QStringLiteral( "ParseGroup()" );
inline const QString s_kParsePropertiesLabel = QStringLiteral( "ParseProperties()" );
inline const QString s_kParsePropertyLabel = QStringLiteral( "ParseProperty()" );
inline const QString s_kParseParametersLabel = QStringLiteral( "ParseParameters()" );
inline const QString s_kParseParameterLabel = QStringLiteral( "ParseParameter()" );
inline const QString s_kParseQuotedParamValueLabel = QStringLiteral( "ParseQuotedParamValue()" );
inline const QString s_kParseValuesLabel = QStringLiteral( "ParseValues()" );

// Error messages.

inline const QString s_kErrCouldNotParseVCard = QStringLiteral( "Could not parse vCard..." );
inline const QString s_kErrCouldNotParseBegin = QStringLiteral( "Could not parse BEGIN property..." );
inline const QString s_kErrCouldNotParseEnd = QStringLiteral( "Could not parse END property..." );
inline const QString s_kErrCouldNotParseProperties = QStringLiteral( "Could not parse properties..." );
inline const QString s_kErrCouldNotParseProperty = QStringLiteral( "Could not parse property..." );
inline const QString s_kErrCouldNotParseParameter = QStringLiteral( "Could not parse PARAMETER..." );
inline const QString s_kErrIllegalCharacter = QStringLiteral( "Found illegal character..." );
inline const QString s_kErrQpAndBase64 =
    QStringLiteral( "Properties cannot be encoded as both QUOTED-PRINTABLE and BASE64" );
inline const QString s_kErrExpectedGroupOrName = QStringLiteral( "Expected property GROUP/NAME token..." );
inline const QString s_kErrExpectedName = QStringLiteral( "Expected property NAME token..." );
inline const QString s_kErrExpectedParamNameOrValue = QStringLiteral( "Expected PARAM NAME/VALUE token..." );
inline const QString s_kErrExpectedParamValue = QStringLiteral( "Expected PARAM VALUE token..." );
inline const QString s_kErrExpectedQuotedParamValue = QStringLiteral( "Expected QUOTED PARAM VALUE token..." );
inline const QString s_kErrExpectedColonToken = QStringLiteral( "Expected COLON token..." );
inline const QString s_kErrExpectedCrlfToken = QStringLiteral( "Expected CRLF token..." );
inline const QString s_kErrExpectedDQuoteToken = QStringLiteral( "Expected DQUOTE token..." );
inline const QString s_kErrExpectedColonChar = QStringLiteral( "Expected COLON character..." );
inline const QString s_kErrExpectedColonOrSemicolonChar = QStringLiteral( "Expected COLON/SEMICOLON character..." );
inline const QString s_kErrExpectedParametersList = QStringLiteral( "Expected PARAMETERS list to be non-null..." );
inline const QString s_kErrExpectedValuesList = QStringLiteral( "Expected VALUES list to be non-null..." );

} // namespace PimManager::vCard
