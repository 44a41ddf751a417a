#include "Contact/ContactCard.h"

#include "Cards/EditedCard.h"
#include "Text/Bytes.h"
#include "Text/EncodedCharset.h"

#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReader.h>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

QByteArray VersionLine( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return QByteArrayLiteral( "VERSION:2.1\r\n" );
    case PimContactVersion::V30:
        return QByteArrayLiteral( "VERSION:3.0\r\n" );
    case PimContactVersion::V40:
        return QByteArrayLiteral( "VERSION:4.0\r\n" );
    default:
        return QByteArray();
    }
}

/// \param a_indentation the indentation of all lines.
PimContactCard CardWith( const QByteArray& a_lines, const QByteArray& a_indentation )
{
    PimContactCard card;
    PimContactReader reader;
    reader.SetCardHandler(
        [&card]( const PimContactCard& a_card )
        {
            card = a_card;
            return true;
        } );
    reader.Feed( a_indentation + "BEGIN:VCARD\r\n" + a_lines + a_indentation + "END:VCARD\r\n" );
    reader.Finish();
    return card;
}

PimContactLine LastLineOf( const PimContactCard& a_card )
{
    PimContactLine last;
    for ( const PimContactLine& line : a_card )
        last = line;
    return last;
}

/// \return true for BEGIN and END, and for the line that determines how a card is read.
bool IsOfCard( PropertyId a_property )
{
    return a_property == PropertyId::Begin || a_property == PropertyId::End || a_property == PropertyId::Version;
}

/// \return true if a line is a property between any other lines and does not absorb the next one.
bool IsAlone( const PimContactLine& a_line, std::string_view a_text )
{
    const bool isOpen =
        a_line.Encoding() == PimContactEncoding::QuotedPrintable && EndsWith( TrimmedRight( a_text ), "=" );
    return !isOpen && !a_line.Oddities().testFlag( PimContactOddity::MissingColon ) &&
           !IsOfCard( PropertyOf( ViewOf( a_line.Name() ) ) );
}

} // namespace

PimContactCard CardOf( const ContactLines& a_lines )
{
    std::vector<PimContactLine> lines;
    lines.reserve( a_lines.Size() );
    for ( size_t i = 0; i < a_lines.Size(); ++i )
        lines.push_back( a_lines.LineOf( i ) );
    return EditedCard( a_lines.Card(), lines );
}

PimContactCard EmptyCard()
{
    static const PimContactCard s_card = CardWith( VersionLine( PimContactVersion::V30 ), QByteArray() );
    return s_card;
}

PimContactCard CardWithLine( const QByteArray& a_line, const ContactLines& a_lines )
{
    const std::string_view text = ViewOf( a_line );
    const bool hasOneLine = std::none_of( text.begin(), text.end(), IsLineEndByte );
    if ( !hasOneLine || text.empty() || IsBlank( text.front() ) || !IsValidUtf8( text ) )
        return PimContactCard();
    const QByteArray indentation = a_lines.Indentation();
    QByteArray version = VersionLine( a_lines.Version() );
    const int count = version.isEmpty() ? 1 : 2;
    if ( !version.isEmpty() )
        version.prepend( indentation );
    const PimContactCard card = CardWith( version + indentation + a_line + "\r\n", indentation );
    const bool isOne = card.LineCount() == count && card.IsWhole() && card.Version() == a_lines.Version();
    return isOne && IsAlone( LastLineOf( card ), text ) ? card : PimContactCard();
}

} // namespace PimManager::Contacts
