/// \file
/// Small books and what changed in them, for tests.

#pragma once

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <QByteArray>
#include <QStringList>

#include <string>

namespace PimManager::PhoneBook
{

/// \param a_cards cards between bars, each with lines between line feeds, such as `FN:Ada\nTEL:1|FN:Bo`. A card that
///                does not begin with VERSION has version 3.0.
inline Contacts::PimContactBook BookOf( const QByteArray& a_cards )
{
    QByteArray text;
    for ( const QByteArray& card : a_cards.isEmpty() ? QList<QByteArray>() : a_cards.split( '|' ) )
    {
        text += "BEGIN:VCARD\n";
        text += card.startsWith( "VERSION" ) ? "" : "VERSION:3.0\n";
        text += card + "\nEND:VCARD\n";
    }
    return Contacts::PimContactBook::FromBytes( text );
}

inline QString NameOf( PimPhoneBookBasis a_basis )
{
    switch ( a_basis )
    {
    case PimPhoneBookBasis::Content:
        return QStringLiteral( "content" );
    case PimPhoneBookBasis::Uid:
        return QStringLiteral( "uid" );
    case PimPhoneBookBasis::BluetoothUid:
        return QStringLiteral( "bluetooth" );
    case PimPhoneBookBasis::NameAndNumber:
        return QStringLiteral( "number" );
    case PimPhoneBookBasis::Name:
        return QStringLiteral( "name" );
    }
    return QString();
}

inline bool Contains( const QVector<PimPhoneBookPair>& a_pairs, const PimPhoneBookPair& a_pair )
{
    for ( const PimPhoneBookPair& pair : a_pairs )
    {
        if ( pair.m_old == a_pair.m_old && pair.m_new == a_pair.m_new && pair.m_basis == a_pair.m_basis )
            return true;
    }
    return false;
}

/// \return all pairs, such as `0-1 uid changed moved`, and `+1` for an added and `-1` for a removed contact.
inline std::string TextOf( const PimPhoneBookChanges& a_changes )
{
    QStringList texts;
    for ( const PimPhoneBookPair& pair : a_changes.Pairs() )
    {
        QString text = QStringLiteral( "%1-%2 " ).arg( pair.m_old ).arg( pair.m_new ) + NameOf( pair.m_basis );
        text += Contains( a_changes.Changed(), pair ) ? QStringLiteral( " changed" ) : QString();
        text += Contains( a_changes.Moved(), pair ) ? QStringLiteral( " moved" ) : QString();
        texts.append( text );
    }
    for ( const int added : a_changes.Added() )
        texts.append( QStringLiteral( "+%1" ).arg( added ) );
    for ( const int removed : a_changes.Removed() )
        texts.append( QStringLiteral( "-%1" ).arg( removed ) );
    return texts.join( QStringLiteral( ", " ) ).toStdString();
}

} // namespace PimManager::PhoneBook
