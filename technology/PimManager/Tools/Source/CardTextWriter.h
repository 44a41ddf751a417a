/// \file
/// Cards for people to read.

#pragma once

#include "CardWriter.h"

#include <QStringList>

class QIODevice;

namespace PimManager::vCard
{
class PimVCardProperty;
}

namespace PimManager::vCard::Tools
{

/// Writes a heading for each card and below it a line for each property:
///
///     1. Nell Brackwater (book.vcf)
///
///         VERSION    3.0
///         FN         Nell Brackwater
///         item1.TEL  [TYPE=CELL; pref] 555-0101
///         N          Brackwater;Nell;;;
///
/// Values stand as the card holds them, joined by semicolons. Nothing in them reaches a terminal as a control
/// character, see ToTerminalValue().
class CardTextWriter : public CardWriter
{
public:
    enum class Length
    {
        Short, ///< Long texts and lists are cut, and their length is told.
        Full
    };

    /// \param a_device must be open and outlive the writer.
    CardTextWriter( QIODevice& a_device, Length a_length );

    void Write( const PimVCard& a_card, qint64 a_number, const QString& a_source ) override;

private:
    void WriteProperty( const PimVCardProperty& a_property, int a_width );
    void WriteList( const QStringList& a_texts, const QString& a_separator, QString ( *a_escape )( QStringView ) );
    QString Label( const PimVCardProperty& a_property ) const;
    int LabelWidth( const PimVCard& a_card ) const;
    QString Cut( const QString& a_text ) const;
    void WritePlain( const QString& a_text );

    QIODevice& m_device;
    const bool m_isFull;
    bool m_isFirst = true;
};

} // namespace PimManager::vCard::Tools
