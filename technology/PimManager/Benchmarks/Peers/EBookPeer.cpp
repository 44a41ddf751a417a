// pimvcard-peer-ebook: libebook-contacts. It reads one card at a time, so this program cuts the text after each END
// line. The library reads a card at the first access to its attributes.

#include "PeerRun.h"

#include <libebook-contacts/libebook-contacts.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace
{

struct Unref
{
    void operator()( EVCard* a_card ) const { g_object_unref( a_card ); }
};
using Cards = std::vector<std::unique_ptr<EVCard, Unref>>;

Cards ReadCards( const std::string& a_text )
{
    const std::string end = "END:VCARD\r\n";
    Cards cards;
    size_t begin = 0;
    for ( size_t found = 0; ( found = a_text.find( end, begin ) ) != std::string::npos; begin = found + end.size() )
    {
        const std::string card = a_text.substr( begin, found + end.size() - begin );
        cards.emplace_back( e_vcard_new_from_string( card.c_str() ) );
        e_vcard_get_attributes( cards.back().get() );
    }
    return cards;
}

int CardsWithName( const Cards& a_cards )
{
    return static_cast<int>( std::count_if( a_cards.begin(), a_cards.end(),
                                            []( const auto& a_card )
                                            { return e_vcard_get_attribute( a_card.get(), EVC_FN ) != nullptr; } ) );
}

} // namespace

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<std::string>( argc, argv, ReadCards, CardsWithName );
}
