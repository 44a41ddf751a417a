/// \file
/// The problems found while a value was decoded.
///
/// \code
/// const PimContactDecoding decoding = line.Decoding();
/// if ( decoding.Problems().testFlag( PimContactDecodingProblem::AssumedCharset ) )
///     qInfo() << "decoded as" << decoding.Charset();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QFlags>
#include <QSharedDataPointer>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactDecodingPrivate;

/// The kinds of problems.
enum class PimContactDecodingProblem
{
    /// CHARSET names an unknown character set. Its count is 1.
    UnknownCharset = 0x01,
    /// The text is not UTF-8 and its line names no known character set. That of the card or the caller was used. Its
    /// count is 1.
    AssumedCharset = 0x02,
    /// Bytes that are not characters of the character set. Each became U+FFFD.
    MalformedText = 0x04,
    /// This system cannot decode the character set. The bytes count as malformed as well. Its count is 1.
    MissingCodec = 0x08,
    /// A "=" in QUOTED-PRINTABLE text without two hexadecimal digits after it. It was kept as written.
    MalformedQuotedPrintable = 0x10,
    /// A backslash before a character that needs no escape, or at the end. Both were kept as written.
    UnknownEscape = 0x20,
    /// A backslash before a quote or an apostrophe. The backslash was removed.
    EscapedQuote = 0x40,
    /// BASE64 or percent-encoded text that cannot be decoded. The text before the fault was decoded. Its count is 1.
    MalformedBinary = 0x80,
};
Q_DECLARE_FLAGS( PimContactDecodingProblems, PimContactDecodingProblem )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactDecodingProblems )

/// The problems of one value. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactDecoding
{
public:
    /// Creates the result for a value in UTF-8 without problems.
    PimContactDecoding();
    PimContactDecoding( const PimContactDecoding& a_other );
    PimContactDecoding& operator=( const PimContactDecoding& a_other );
    ~PimContactDecoding();

    /// \return true if there were no problems.
    bool IsClean() const;

    /// The kinds of problems.
    PimContactDecodingProblems Problems() const;

    /// The number of times that a problem was found.
    qint64 Count( PimContactDecodingProblem a_problem ) const;

    /// \return the position of the first occurrence of a problem, as a byte offset from 0. For
    ///         MalformedQuotedPrintable, it is in the value as written; for MalformedText, in the value after
    ///         QUOTED-PRINTABLE was decoded; for escapes, in the value in UTF-8; for MalformedBinary, in the BASE64 or
    ///         percent-encoded text. -1 if the problem was not found, and for problems with a character set.
    qint64 FirstPlace( PimContactDecodingProblem a_problem ) const;

    /// The name of the character set that was used, such as `windows-1252`. If QUOTED-PRINTABLE text and other text
    /// have different character sets, that of the QUOTED-PRINTABLE text. Never empty.
    QByteArray Charset() const;

private:
    friend class PimContactDecodingPrivate; // creates findings
    QSharedDataPointer<PimContactDecodingPrivate> d;
};

} // namespace PimManager::Contacts
