/// \file
/// What was found while a value was decoded.
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

/// What may be wrong with a value.
enum class PimContactDecodingProblem
{
    /// CHARSET names no known character set. Counts one.
    UnknownCharset = 0x01,
    /// The text is not UTF-8 and its line names no known character set; that of the card or the caller was used. Counts
    /// one.
    AssumedCharset = 0x02,
    /// Bytes that are no characters of the character set. Each became U+FFFD.
    MalformedText = 0x04,
    /// This system cannot decode the character set. The bytes count as malformed as well. Counts one.
    MissingCodec = 0x08,
    /// A "=" that no two hexadecimal digits follow in QUOTED-PRINTABLE text. It was kept as written.
    MalformedQuotedPrintable = 0x10,
    /// A backslash before a character that needs none, or at the end. Both were kept as written.
    UnknownEscape = 0x20,
    /// A backslash before a quote or an apostrophe. The backslash was removed.
    EscapedQuote = 0x40,
    /// BASE64 or percent-encoded text that cannot be decoded. What precedes the fault was decoded. Counts one.
    MalformedBinary = 0x80,
};
Q_DECLARE_FLAGS( PimContactDecodingProblems, PimContactDecodingProblem )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactDecodingProblems )

/// The findings of one value. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactDecoding
{
public:
    /// Creates the findings of a value without problems, in UTF-8.
    PimContactDecoding();
    PimContactDecoding( const PimContactDecoding& a_other );
    PimContactDecoding& operator=( const PimContactDecoding& a_other );
    ~PimContactDecoding();

    /// \return true if there were no problems.
    bool IsClean() const;

    /// The kinds of problems.
    PimContactDecodingProblems Problems() const;

    /// How often a problem was found.
    qint64 Count( PimContactDecodingProblem a_problem ) const;

    /// \return where a problem was found first: a byte, from 0, of the text in which the problem is. For
    ///         MalformedQuotedPrintable that is the value as written, for MalformedText the value after
    ///         QUOTED-PRINTABLE was decoded, for escapes the value in UTF-8, and for MalformedBinary the BASE64 or
    ///         percent-encoded text. -1 if it was not found, and for problems with a character set.
    qint64 FirstPlace( PimContactDecodingProblem a_problem ) const;

    /// The name of the character set that was used, such as `windows-1252`. If QUOTED-PRINTABLE text and other text are
    /// in different ones, that of the QUOTED-PRINTABLE text. Never empty.
    QByteArray Charset() const;

private:
    friend class PimContactDecodingPrivate; // creates findings
    QSharedDataPointer<PimContactDecodingPrivate> d;
};

} // namespace PimManager::Contacts
