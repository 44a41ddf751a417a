#include "Changes/LineDifferences.h"

#include "Changes/ComparedLines.h"
#include "Changes/FieldMatches.h"
#include "Changes/Identifiers.h"
#include "Changes/Moves.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContactCard;

namespace
{

bool IsEmpty( const PimPhoneBookLines& a_lines )
{
    return a_lines.m_old.isEmpty() && a_lines.m_new.isEmpty();
}

void MatchTexts( ComparedLines& a_old, ComparedLines& a_new )
{
    QHash<QString, QVector<int>> places;
    for ( int place = a_old.Size(); --place >= 0; )
        places[a_old.At( place ).m_text].append( place );
    for ( int place = 0; place < a_new.Size(); ++place )
    {
        const auto same = places.find( a_new.At( place ).m_text );
        if ( same == places.end() || same->isEmpty() )
            continue;
        a_new.At( place ).m_partner = same->takeLast();
        a_old.At( a_new.At( place ).m_partner ).m_partner = place;
    }
}

PimPhoneBookLines LinesAt( const ComparedLines& a_old, const ComparedLines& a_new, const QVector<int>& a_newPlaces )
{
    QVector<int> oldPlaces;
    for ( const int place : a_newPlaces )
        oldPlaces.append( a_new.At( place ).m_partner );
    std::sort( oldPlaces.begin(), oldPlaces.end() );
    return { a_old.LinesAt( oldPlaces ), a_new.LinesAt( a_newPlaces ) };
}

// The functions below are for cards in which each line has a partner.

QVector<int> MovedLines( const ComparedLines& a_new )
{
    QVector<int> partners;
    for ( int place = 0; place < a_new.Size(); ++place )
        partners.append( a_new.At( place ).m_partner );
    return FewestMoves( partners );
}

QVector<int> RegroupedLines( const ComparedLines& a_old, const ComparedLines& a_new )
{
    QVector<int> places;
    for ( int place = 0; place < a_new.Size(); ++place )
    {
        const QByteArray group = a_old.At( a_new.At( place ).m_partner ).m_line.Group();
        if ( group.toUpper() != a_new.At( place ).m_line.Group().toUpper() )
            places.append( place );
    }
    return places;
}

PimPhoneBookLines Rearranged( const ComparedLines& a_old, const ComparedLines& a_new )
{
    const QVector<int> moved = MovedLines( a_new );
    return LinesAt( a_old, a_new, moved.isEmpty() ? RegroupedLines( a_old, a_new ) : moved );
}

PimPhoneBookLines Compared( ComparedLines a_old, ComparedLines a_new )
{
    MatchTexts( a_old, a_new );
    MatchFields( a_old, a_new );
    const PimPhoneBookLines lines = { a_old.Alone(), a_new.Alone() };
    return IsEmpty( lines ) ? Rearranged( a_old, a_new ) : lines;
}

} // namespace

// Empty lines and VERSION are no difference unless there is no other one. If there is none at all, the cards are read
// in different ways, such as with different default character sets.
PimPhoneBookLines DifferentLines( const PimContactCard& a_old, const PimContactCard& a_new )
{
    const QList<QLatin1String> ignored = IgnoredIdentifiers( IdentifiersOf( a_old ), IdentifiersOf( a_new ) );
    if ( AreEqualWithout( a_old, a_new, ignored ) )
        return PimPhoneBookLines();
    PimPhoneBookLines lines;
    for ( const bool doAllCount : { false, true } )
    {
        lines = Compared( ComparedLines( a_old, ignored, doAllCount ), ComparedLines( a_new, ignored, doAllCount ) );
        if ( !IsEmpty( lines ) )
            return lines;
    }
    return { ComparedLines( a_old, ignored, true ).All(), ComparedLines( a_new, ignored, true ).All() };
}

} // namespace PimManager::PhoneBook
