/// \file
/// The findings of a card as text, for tests.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactConformance.h>

#include <QByteArray>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

/// \return the only card of a text.
inline PimContactCard OnlyCard( const QByteArray& a_text, const PimContactOptions& a_options = PimContactOptions() )
{
    const PimContactBook book = PimContactBook::FromBytes( a_text, a_options );
    EXPECT_EQ( book.Size(), 1 );
    return book.Size() == 0 ? PimContactCard() : book.CardAt( 0 );
}

/// \return the findings of the only card of a text, such as `2 missing-property (RFC 6350, section 6.2.1)`, with a
///         semicolon between them. The number is that of the line.
inline std::string FindingsOfText( const QByteArray& a_text )
{
    const QList<PimContactFinding> findings = PimContactConformance( OnlyCard( a_text ) ).Findings();
    std::string text;
    for ( const PimContactFinding& finding : findings )
        text += ( text.empty() ? "" : "; " ) + std::to_string( finding.Line() ) + " " +
                NameOf( finding.Code() ).data() + " (" + finding.Section().toStdString() + ")";
    return text;
}

/// The same for the lines of a card, BEGIN, VERSION and END left out.
inline std::string FindingsOfLines( const QByteArray& a_lines, const QByteArray& a_version )
{
    return FindingsOfText( "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\n" + a_lines + "END:VCARD\r\n" );
}

/// The same for one line, which is the fifth, of a card that has what every version demands.
inline std::string FindingsOfLine( const QByteArray& a_line, const QByteArray& a_version )
{
    return FindingsOfLines( "FN:Ada Fenwick\r\nN:Fenwick;Ada;;;\r\n" + a_line + "\r\n", a_version );
}

} // namespace PimManager::Contacts
