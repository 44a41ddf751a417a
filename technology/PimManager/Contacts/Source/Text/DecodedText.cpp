#include "Text/DecodedText.h"

#include "Text/Utf8Encoding.h"

#include <QChar>

#include <array>

namespace PimManager::Contacts
{

DecodedText::DecodedText( QByteArray& a_out, std::vector<quint32>* a_places ) :
    m_out( a_out ),
    m_places( a_places )
{
}

void DecodedText::AppendAscii( std::string_view a_text, size_t a_place )
{
    AppendBytes( a_text );
    if ( m_places == nullptr )
        return;
    for ( size_t place = a_place; place < a_place + a_text.size(); ++place )
        m_places->push_back( static_cast<quint32>( place ) );
}

void DecodedText::AppendUtf8( std::string_view a_character, size_t a_place )
{
    AppendBytes( a_character );
    if ( m_places != nullptr )
        m_places->insert( m_places->end(), a_character.size(), static_cast<quint32>( a_place ) );
}

void DecodedText::Append( char32_t a_character, size_t a_place )
{
    std::array<char, s_kLongestUtf8> bytes{};
    const char* const end = WriteUtf8( a_character, bytes.data() );
    AppendUtf8( std::string_view( bytes.data(), static_cast<size_t>( end - bytes.data() ) ), a_place );
}

void DecodedText::AppendMalformed( size_t a_place )
{
    if ( m_result.m_malformed == 0 )
        m_result.m_firstMalformed = static_cast<quint32>( a_place );
    ++m_result.m_malformed;
    Append( QChar::ReplacementCharacter, a_place );
}

void DecodedText::AppendBytes( std::string_view a_bytes )
{
    m_out.append( a_bytes.data(), static_cast<int>( a_bytes.size() ) );
}

} // namespace PimManager::Contacts
