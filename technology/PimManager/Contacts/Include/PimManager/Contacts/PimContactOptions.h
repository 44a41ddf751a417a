/// \file
/// Options for reading: limits, a filter, and the default character set.
///
/// \code
/// PimContactOptions options;
/// options.SetCardBytes( 1024 * 1024 );
/// options.SetCards( 2000 );
/// options.SetNames( { QByteArrayLiteral( "N" ), QByteArrayLiteral( "FN" ), QByteArrayLiteral( "TEL" ) } );
/// PimContactReader reader( options );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QList>
#include <QSharedDataPointer>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactOptionsPrivate;

/// Options for PimContactReader and PimContactBook. Implicitly shared; copying is cheap.
///
/// A line or card that exceeds a limit is left out. A diagnostic reports it, and the rest of the file is read. A limit
/// of 0 or less means "no limit", except that a card never has more than 1 GiB and cards never nest deeper than 64. The
/// defaults suit a desktop; docs/embedded.md lists values for devices with little memory.
class PIMCONTACT_EXPORT PimContactOptions
{
public:
    /// Creates options with the default limits, without a filter, and with Windows-1252 as the default character set.
    PimContactOptions();
    PimContactOptions( const PimContactOptions& a_other );
    PimContactOptions& operator=( const PimContactOptions& a_other );
    ~PimContactOptions();

    /// The largest card in bytes, from BEGIN to the line ending of END. Default: 16 MiB. A longer card is refused, and
    /// at most the limit of its bytes is kept in memory. The same limit applies to the look-ahead of the reader, and to
    /// the text outside cards that it keeps because the text may be a card without BEGIN.
    qint64 CardBytes() const;
    void SetCardBytes( qint64 a_bytes );

    /// The longest content line in bytes, including its continuation lines and their line endings. Default: only the
    /// limit of the card applies. A longer line is dropped, and its card is delivered in part.
    qint64 LineBytes() const;
    void SetLineBytes( qint64 a_bytes );

    /// The largest number of physical lines in a card. Default: 1,000,000. A card with more lines is refused. The
    /// number is at most 1,024 or a fifth of CardBytes(), whichever is larger.
    qint64 CardLines() const;
    void SetCardLines( qint64 a_lines );

    /// The deepest nesting of cards: 1 is the card in an AGENT. Default: 8. The property that contains a deeper card is
    /// dropped.
    int Nesting() const;
    void SetNesting( int a_depth );

    /// The largest number of delivered cards. Default: 1,000,000. Further cards are refused.
    qint64 Cards() const;
    void SetCards( qint64 a_cards );

    /// The largest number of bytes in all delivered cards together. Default: 1 GiB. A card that no longer fits is
    /// refused. Later cards that fit are still delivered.
    qint64 BookBytes() const;
    void SetBookBytes( qint64 a_bytes );

    /// The largest number of diagnostics that a report keeps. Default: 1,000. Further ones are only counted and passed
    /// to the handler. 0 keeps none, and a negative number keeps all.
    int Diagnostics() const;
    void SetDiagnostics( int a_count );

    /// The names of the properties to keep, in any letter case. Groups are ignored. An empty list, the default, keeps
    /// all properties. VERSION is always kept. Lines of other properties are left out of the cards and reported as
    /// filtered.
    QList<QByteArray> Names() const;
    void SetNames( const QList<QByteArray>& a_names );

    /// If false, PHOTO, LOGO, SOUND and KEY are left out, and every property whose value is a `data:` URI. BASE64 is
    /// left out too, except in a property such as FN, where BASE64 may be text (see PimContactLine). Default: true.
    bool AreMediaWanted() const;
    void SetMediaWanted( bool a_areWanted );

    /// The label of the character set for text that is not UTF-8 and names no character set. Default: `windows-1252`.
    /// If it is `UTF-8` or an unknown name, such text is read as UTF-8, and malformed bytes become U+FFFD when they are
    /// decoded.
    QByteArray DefaultCharset() const;
    void SetDefaultCharset( const QByteArray& a_charset );

private:
    QSharedDataPointer<PimContactOptionsPrivate> d;
};

} // namespace PimManager::Contacts
