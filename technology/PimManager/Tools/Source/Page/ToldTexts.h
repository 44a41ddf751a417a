/// \file
/// What a reader of the page already knows of a card.

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QHash>
#include <QSet>
#include <QString>

namespace PimManager::Tools
{

/// Remembers what the page says of each line of a card, so that the rest can be listed and nothing is lost.
///
/// A line is told if each word of its value and of its parameters is in what was said of it. A word is a run of letters
/// and digits; the letter case does not count. How a value is written is left out: ENCODING, CHARSET, VALUE, and what
/// only links lines with each other. Types, preference and language are always said with a line.
class ToldTexts
{
public:
    /// A field is shown with a text. Its label is shown too, cut if it is long.
    void Tell( const Contacts::PimContactField& a_field, const QString& a_text );

    /// A line is shown with a text.
    void Tell( int a_id, const QString& a_text );

    /// The value of a line is shown in other words, such as a date or a picture. Its parameters may not be.
    void TellValue( int a_id ) { m_values.insert( a_id ); }

    /// \return true if something was said of a line.
    bool IsMentioned( int a_id ) const { return m_texts.contains( a_id ); }

    /// \return true if nothing is left to say of a line. Linear in what the line says and what was told of it.
    bool IsTold( const Contacts::PimContactLine& a_line, int a_id ) const;

    /// \return true if a parameter says something that is not always shown with a line.
    static bool IsShownOnItsOwn( const QString& a_parameter );

    /// \return true if each word of a text is in another one. Linear.
    static bool IsSaidIn( const QString& a_text, const QString& a_other );

private:
    QHash<int, QString> m_texts;
    QSet<int> m_values;
};

} // namespace PimManager::Tools
