#include "Cards/Diagnostic.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace PimManager::Contacts
{

namespace
{

QString TextOf( PimContactDiagnosticCode a_code, qint64 a_count )
{
    return PimContactDiagnosticPrivate::Create( a_code, 1, TextPlace(), a_count ).Text();
}

} // namespace

TEST( DiagnosticTest, EachCodeHasAWordAndASentenceOfItsOwn )
{
    std::set<std::string> words;
    std::set<std::string> sentences;
    for ( int i = 0; i < s_kPimContactDiagnosticCodes; ++i )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( i );
        const std::string word = NameOf( code ).data();
        const std::string sentence = TextOf( code, 17 ).toStdString();
        EXPECT_FALSE( word.empty() ) << i;
        EXPECT_TRUE( words.insert( word ).second ) << word;
        EXPECT_FALSE( sentence.empty() ) << word;
        EXPECT_TRUE( sentences.insert( sentence ).second ) << sentence;
        EXPECT_EQ( sentence.find( '%' ), std::string::npos ) << sentence;
    }
}

TEST( DiagnosticTest, SentenceHasTheCountWhereTheCodeCounts )
{
    EXPECT_EQ( TextOf( PimContactDiagnosticCode::TextOutside, 17 ).toStdString(),
               "text outside cards was ignored: lines: 17" );
    EXPECT_EQ( TextOf( PimContactDiagnosticCode::NoCard, 17 ).toStdString(), "no card was found in the text" );
}

} // namespace PimManager::Contacts
