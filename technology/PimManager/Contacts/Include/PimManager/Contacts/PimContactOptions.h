/// \file
/// What a caller can choose about reading: limits, a filter, and the character set of last resort.
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
/// Exceeding a limit costs the line or the card that exceeds it. A diagnostic reports it, and the rest of the file is
/// read. A limit of 0 or less means "no limit", except that a card never has more than 1 GiB and cards never nest
/// deeper than 64. The defaults suit a desktop; docs/embedded.md lists values for devices with little memory.
class PIMCONTACT_EXPORT PimContactOptions
{
public:
    /// Creates options with the default limits, without a filter, and with Windows-1252 as the default character set.
    PimContactOptions();
    PimContactOptions( const PimContactOptions& a_other );
    PimContactOptions& operator=( const PimContactOptions& a_other );
    ~PimContactOptions();

    /// The largest card in bytes, from BEGIN to the line ending of END. Default: 16 MiB. A longer card is refused, and
    /// no more than the limit of it is in memory. The limit also bounds how far the reader looks ahead and how much
    /// text outside cards it keeps in case that text is a card without BEGIN.
    qint64 CardBytes() const;
    void SetCardBytes( qint64 a_bytes );

    /// The longest content line in bytes, with its continuation lines and their line endings. Default: no limit but
    /// that of the card. A longer line is dropped; its card is delivered in part.
    qint64 LineBytes() const;
    void SetLineBytes( qint64 a_bytes );

    /// The largest number of physical lines in a card. Default: 1,000,000. A card with more lines is refused. The
    /// number is never larger than 1,024 or a fifth of CardBytes(), whichever is larger.
    qint64 CardLines() const;
    void SetCardLines( qint64 a_lines );

    /// How deeply cards may nest: 1 is the card of an AGENT. Default: 8. The property that holds a deeper card is
    /// dropped.
    int Nesting() const;
    void SetNesting( int a_depth );

    /// The largest number of delivered cards. Default: 1,000,000. Further cards are refused.
    qint64 Cards() const;
    void SetCards( qint64 a_cards );

    /// The largest sum of the bytes of all delivered cards. Default: 1 GiB. A card that no longer fits is refused, and
    /// later cards that fit are still delivered.
    qint64 BookBytes() const;
    void SetBookBytes( qint64 a_bytes );

    /// The largest number of diagnostics that a report keeps. Default: 1,000. Further ones are counted and passed to
    /// the handler. 0 keeps none; a negative number keeps all.
    int Diagnostics() const;
    void SetDiagnostics( int a_count );

    /// The properties to keep, by name in any letter case and whatever their group. An empty list, the default, keeps
    /// all of them. VERSION is always kept. Lines of other properties are left out of the cards and reported as
    /// filtered.
    QList<QByteArray> Names() const;
    void SetNames( const QList<QByteArray>& a_names );

    /// False leaves out PHOTO, LOGO, SOUND and KEY, and every property whose value is a `data:` URI. BASE64 is left out
    /// too, except in a property such as FN, whose BASE64 may be text (see PimContactLine). Default: true.
    bool AreMediaWanted() const;
    void SetMediaWanted( bool a_areWanted );

    /// The character set of text that is not UTF-8 and names none, by a label such as `windows-1252`. Default:
    /// `windows-1252`. With `UTF-8` or an unknown name such text is read as UTF-8, and malformed bytes become U+FFFD
    /// when they are decoded.
    QByteArray DefaultCharset() const;
    void SetDefaultCharset( const QByteArray& a_charset );

private:
    QSharedDataPointer<PimContactOptionsPrivate> d;
};

} // namespace PimManager::Contacts
