/// \file
/// Cards as rows of tables, and what their contacts show.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>
#include <QMetaEnum>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

struct ContactRow
{
    const char* m_version; ///< of the card; without a VERSION line if it is empty
    const char* m_lines;
    const char* m_shown;
};

/// \return the contact in the only card of these lines.
inline PimContact ContactWith( const QByteArray& a_lines, const QByteArray& a_version )
{
    const QByteArray version = a_version.isEmpty() ? QByteArray() : "VERSION:" + a_version + "\r\n";
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + version + a_lines + "\r\nEND:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.left( 200 ).toStdString();
    return book.IsEmpty() ? PimContact() : book.At( 0 );
}

/// Compares what a function shows of each contact with the row.
template <class Rows, class Show>
void ExpectRows( const Rows& a_rows, Show a_show )
{
    for ( const ContactRow& row : a_rows )
    {
        const PimContact contact = ContactWith( row.m_lines, row.m_version );
        EXPECT_EQ( a_show( contact ), row.m_shown ) << row.m_version << '\n' << row.m_lines;
    }
}

/// \return ` name=text`, or nothing for an empty text.
inline std::string Named( const char* a_name, const QString& a_text )
{
    return a_text.isEmpty() ? std::string() : std::string( " " ) + a_name + '=' + a_text.toStdString();
}

inline std::string Named( const char* a_name, const QStringList& a_texts )
{
    return Named( a_name, a_texts.join( QLatin1Char( '|' ) ) );
}

/// \return the names of flags in braces, such as ` {Home|Work}`.
template <class Kinds>
std::string ShownKinds( Kinds a_kinds )
{
    const auto kinds = static_cast<int>( a_kinds );
    return kinds == 0 ? std::string() : " {" + QMetaEnum::fromType<Kinds>().valueToKeys( kinds ).toStdString() + '}';
}

/// \return what all fields have in common.
inline std::string ShownCommon( const PimContactField& a_field )
{
    const std::optional<int> preference = a_field.Preference();
    return Named( "label", a_field.Label() ) + Named( "types", a_field.Types() ) +
           ( preference ? " pref=" + std::to_string( *preference ) : std::string() ) +
           Named( "language", a_field.Language() );
}

inline std::string Shown( const PimContactText& a_text )
{
    return a_text.Text().toStdString() + ShownKinds( a_text.Kinds() ) + Named( "level", a_text.Level() ) +
           ShownCommon( a_text );
}

/// \return the fields, divided by ` / `.
template <class Field, class Show>
std::string ShownList( const PimContactList<Field>& a_fields, Show a_show )
{
    std::string shown;
    for ( const Field& field : a_fields )
        shown += ( shown.empty() ? "" : " / " ) + a_show( field );
    return shown;
}

inline std::string ShownTexts( const PimContactList<PimContactText>& a_texts )
{
    return ShownList( a_texts, []( const PimContactText& a_text ) { return Shown( a_text ); } );
}

} // namespace PimManager::Contacts
