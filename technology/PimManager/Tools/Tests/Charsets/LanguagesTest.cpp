#include "Charsets/Languages.h"

#include <gtest/gtest.h>

using namespace PimManager::Tools;

TEST( LanguagesTest, EachCharacterSetIsKnownAndHasALanguage )
{
    QList<QByteArray> names;
    for ( const UsedCharset& used : UsedCharsets() )
    {
        const QByteArray name = used.m_charset.Name();
        EXPECT_TRUE( used.m_charset.IsKnown() );
        EXPECT_FALSE( used.m_languages.empty() ) << name.constData();
        EXPECT_FALSE( names.contains( name ) ) << name.constData();
        names.append( name );
    }
    EXPECT_EQ( names.first(), "windows-1252" );
}

// A table in the wrong script or for another character set would have no letter in common with it.
TEST( LanguagesTest, CommonLettersAreInTheCharacterSet )
{
    for ( const UsedCharset& used : UsedCharsets() )
    {
        for ( const Language& language : used.m_languages )
        {
            int common = 0;
            for ( int first = 0x81; first <= 0xFE; ++first )
            {
                for ( int second = 0x41; second <= 0xFE; ++second )
                {
                    qint64 malformed = 0;
                    const QByteArray bytes = QByteArray( 1, static_cast<char>( first ) ) + static_cast<char>( second );
                    const QString text = used.m_charset.Decode( bytes, &malformed );
                    const Fit fit = language.FitOf( text.left( 1 ) );
                    common += malformed == 0 && fit.m_wide > 0 && language.IsCommon( fit ) ? 1 : 0;
                }
            }
            EXPECT_GT( common, 100 ) << used.m_charset.Name().constData();
        }
    }
}
