// docs/vcard-support.md has the table of the code.

#include "Writing/VersionTable.h"

#include "Lines/PropertyRules.h"
#include "Text/Bytes.h"

#include <QFile>

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

namespace
{

TEST( VersionTableTest, DocumentHasTheTable )
{
    QFile file( QStringLiteral( PIMCONTACT_DOCUMENT ) );
    ASSERT_TRUE( file.open( QIODevice::ReadOnly ) );
    const QByteArray document = file.readAll();
    const QByteArray table = VersionTableText();
    const QByteArray headings = table.left( table.indexOf( '\n' ) + 1 );
    const int begin = static_cast<int>( document.indexOf( headings ) );
    ASSERT_GE( begin, 0 );
    const int end = static_cast<int>( document.indexOf( "\n\n", begin ) );
    EXPECT_EQ( document.mid( begin, end + 1 - begin ).toStdString(), table.toStdString() );
}

// What a version has is written under its own name there, and what it does not have under no name of a standard.
TEST( VersionTableTest, NamesAreThoseOfTheStandards )
{
    for ( const PimContactVersion version : { PimContactVersion::V21, PimContactVersion::V30, PimContactVersion::V40 } )
    {
        for ( size_t i = 0; i < s_kProperties; ++i )
        {
            const auto property = static_cast<PropertyId>( i );
            const std::string_view written = NameIn( NameOf( property ), property, version );
            const bool isBoundary = property == PropertyId::Begin || property == PropertyId::End;
            if ( NameOf( property ).empty() || isBoundary || property == PropertyId::Version )
                continue;
            if ( FindRule( property, version ) != nullptr )
            {
                EXPECT_EQ( written, NameOf( property ) );
            }
            else if ( property != PropertyId::Messenger )
            {
                EXPECT_TRUE( IsExtensionName( written ) || FindRule( PropertyOf( written ), version ) != nullptr )
                    << std::string( written );
            }
        }
    }
}

// Whatever name a property has, a contact reads it as the same one.
TEST( VersionTableTest, NamesMeanTheSameProperty )
{
    for ( size_t i = 0; i < s_kProperties; ++i )
    {
        const auto property = static_cast<PropertyId>( i );
        for ( const VersionCell& cell : VersionRowOf( property ).m_cells )
        {
            const bool isOther = property == PropertyId::Agent || property == PropertyId::Label;
            if ( !cell.m_name.empty() && !isOther )
            {
                EXPECT_EQ( PropertyOf( cell.m_name ), property ) << std::string( cell.m_name );
            }
        }
    }
}

} // namespace

} // namespace PimManager::Contacts
