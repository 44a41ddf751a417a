/// \file
/// The JSON of one card, for tests.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactJson.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

/// \param a_lines the lines between BEGIN and END, without the last line ending.
inline PimContactCard CardOf( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + a_lines + "\r\nEND:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.toStdString();
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

/// \return the text; a test fails if it is no JSON.
inline std::string Checked( const QByteArray& a_json )
{
    QJsonParseError error;
    QJsonDocument::fromJson( a_json, &error );
    EXPECT_EQ( error.error, QJsonParseError::NoError ) << a_json.toStdString();
    return a_json.toStdString();
}

/// \return the JSON of a card.
inline std::string JsonOf( const QByteArray& a_lines )
{
    return Checked( PimContactJson::Of( CardOf( a_lines ) ) );
}

/// \return the object of the property that follows VERSION.
inline std::string PropertyOf( const QByteArray& a_line, const QByteArray& a_version = "3.0" )
{
    const std::string json = JsonOf( "VERSION:" + a_version + "\r\n" + a_line );
    const std::string head =
        R"("properties":[{"name":"VERSION","types":[],"values":[")" + a_version.toStdString() + R"("]},)";
    const size_t begin = json.find( head );
    EXPECT_NE( begin, std::string::npos ) << json;
    return begin == std::string::npos ? json
                                      : json.substr( begin + head.size(), json.size() - begin - head.size() - 2 );
}

/// \return the JSON object as Qt reads it.
inline QJsonObject ObjectOf( const PimContactCard& a_card )
{
    const QByteArray json = PimContactJson::Of( a_card );
    Checked( json );
    return QJsonDocument::fromJson( json ).object();
}

} // namespace PimManager::Contacts
