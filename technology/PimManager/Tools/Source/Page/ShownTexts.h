/// \file
/// Which texts of a card the page shows.

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QHash>
#include <QSet>
#include <QString>

namespace PimManager::Tools
{

/// Remembers which text the page shows for each line of a card, so that the rest can be listed and nothing is lost.
///
/// A line is covered if each word of its value and of its parameters is in the texts that are shown for it. A word is a
/// run of letters and digits; letter case does not matter. Parameters that only describe how the value is written
/// (ENCODING, CHARSET, VALUE) or that only link lines do not count. Types, preference and language are always shown
/// with a line.
class ShownTexts
{
public:
    /// Adds a text that is shown for a field. Its label is shown too, cut if it is long.
    void Add( const Contacts::PimContactField& a_field, const QString& a_text );

    /// Adds a text that is shown for a line.
    void Add( int a_id, const QString& a_text );

    /// Adds a value that is shown in other words, such as a date or a picture. Its parameters may not be shown.
    void AddValue( int a_id ) { m_values.insert( a_id ); }

    /// \return true if any text is shown for a line.
    bool IsMentioned( int a_id ) const { return m_texts.contains( a_id ); }

    /// \return true if nothing of a line is left to show. Linear in the line and its shown texts.
    bool IsCovered( const Contacts::PimContactLine& a_line, int a_id ) const;

    /// \return true if a parameter is not always shown with its line.
    static bool IsShownOnItsOwn( const QString& a_parameter );

    /// \return true if each word of a text is in another text. Linear.
    static bool IsSaidIn( const QString& a_text, const QString& a_other );

private:
    QHash<int, QString> m_texts;
    QSet<int> m_values;
};

} // namespace PimManager::Tools
