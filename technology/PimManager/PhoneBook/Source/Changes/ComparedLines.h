/// \file
/// The lines of a card in a comparison with another card.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QHash>
#include <QList>
#include <QString>
#include <QVector>

#include <vector>

namespace PimManager::PhoneBook
{

/// A line with the text that decides whether it is equal to another one.
struct ComparedLine
{
    Contacts::PimContactLine m_line;
    int m_id;
    /// Name, parameters and decoded value. Groups, folds, encodings and the like do not count.
    QString m_text;
    /// The other card has an equal line at this place. -1 if it has none.
    int m_partner = -1;
};

/// The lines of a card that count.
class ComparedLines
{
public:
    /// \param a_except the names of lines that do not count.
    /// \param a_doAllCount lines without a value count as well, and so does VERSION.
    ComparedLines( const Contacts::PimContactCard& a_card, const QList<QLatin1String>& a_except, bool a_doAllCount );

    const Contacts::PimContact& Contact() const { return m_contact; }
    int Size() const { return static_cast<int>( m_lines.size() ); }
    ComparedLine& At( int a_place ) { return m_lines[static_cast<size_t>( a_place )]; }
    const ComparedLine& At( int a_place ) const { return m_lines[static_cast<size_t>( a_place )]; }

    /// \return the place of the line with an id if it has no partner; else -1.
    int PlaceOf( int a_id ) const;
    /// The lines without a partner.
    QList<Contacts::PimContactLine> Alone() const;
    /// All lines that count.
    QList<Contacts::PimContactLine> All() const;
    /// The lines at some places.
    QList<Contacts::PimContactLine> LinesAt( const QVector<int>& a_places ) const;

private:
    const Contacts::PimContact m_contact;
    std::vector<ComparedLine> m_lines;
    QHash<int, int> m_places;
};

} // namespace PimManager::PhoneBook
