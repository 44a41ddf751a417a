/// \file
/// Compares the JSON of a card with what its lines return.

#pragma once

#include "OneCard.h"

#include <QJsonArray>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

inline QStringList ListOf( const QJsonValue& a_value )
{
    QStringList list;
    const QJsonArray array = a_value.toArray();
    for ( const auto& element : array )
        list.append( element.toString() );
    return list;
}

inline void ExpectSameProperty( const PimContactLine& a_line, const QJsonObject& a_property,
                                const std::string& a_where );

inline void ExpectSameCard( const PimContactCard& a_card, const QJsonObject& a_object, const std::string& a_where )
{
    const QJsonArray properties = a_object.value( QLatin1String( "properties" ) ).toArray();
    ASSERT_EQ( properties.size(), a_card.LineCount() ) << a_where;
    EXPECT_EQ( a_object.value( QLatin1String( "line" ) ).toInt(), a_card.FirstLine() ) << a_where;
    EXPECT_EQ( a_object.value( QLatin1String( "whole" ) ).toBool(), a_card.IsWhole() ) << a_where;
    int place = 0;
    for ( const PimContactLine& line : a_card )
    {
        ExpectSameProperty( line, properties.at( place ).toObject(), a_where + "/" + std::to_string( place ) );
        ++place;
    }
}

inline void ExpectSameProperty( const PimContactLine& a_line, const QJsonObject& a_property,
                                const std::string& a_where )
{
    const PimContactBinary binary = a_line.Binary();
    const bool isData = !binary.IsNull() && !binary.IsDamaged();
    ASSERT_EQ( a_property.contains( QLatin1String( "data" ) ), isData ) << a_where;
    ASSERT_EQ( a_property.contains( QLatin1String( "fault" ) ), binary.IsDamaged() ) << a_where;
    ASSERT_EQ( a_property.contains( QLatin1String( "card" ) ), !a_line.NestedCard().IsNull() ) << a_where;
    if ( isData )
    {
        const QByteArray data = a_property.value( QLatin1String( "data" ) ).toString().toLatin1();
        EXPECT_EQ( QByteArray::fromBase64( data ), binary.Bytes() ) << a_where;
        EXPECT_EQ( data, binary.Bytes().toBase64() ) << a_where;
        EXPECT_EQ( a_property.value( QLatin1String( "size" ) ).toInt(), binary.Bytes().size() ) << a_where;
    }
    else if ( a_property.contains( QLatin1String( "values" ) ) )
    {
        const QStringList expected = binary.IsNull() ? a_line.Values() : QStringList( a_line.Text() );
        EXPECT_EQ( ListOf( a_property.value( QLatin1String( "values" ) ) ), expected ) << a_where;
    }
    else
    {
        EXPECT_FALSE( a_line.NestedCard().IsNull() ) << a_where;
        EXPECT_EQ( a_line.Text(), QString() ) << a_where;
    }
    EXPECT_EQ( a_property.value( QLatin1String( "fault" ) ).toInt( -1 ), binary.FaultPlace() ) << a_where;
    if ( !a_line.NestedCard().IsNull() )
        ExpectSameCard( a_line.NestedCard(), a_property.value( QLatin1String( "card" ) ).toObject(),
                        a_where + "/card" );
}

/// Compares every card of a file.
inline void ExpectSameBook( const QByteArray& a_bytes, const std::string& a_where )
{
    const PimContactBook book = PimContactBook::FromBytes( a_bytes );
    PimContactJson json;
    QByteArray text;
    for ( const PimContactCard& card : book.Cards() )
    {
        text.resize( 0 );
        json.Append( card, text );
        ASSERT_FALSE( text.contains( '\n' ) ) << a_where;
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson( text, &error ).object();
        ASSERT_EQ( error.error, QJsonParseError::NoError ) << a_where << '\n' << text.toStdString();
        ExpectSameCard( card, object, a_where + " card " + std::to_string( card.Number() ) );
    }
}

} // namespace PimManager::Contacts
