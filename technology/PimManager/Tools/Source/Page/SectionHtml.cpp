#include "Page/SectionHtml.h"

#include "Page/HtmlText.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

using Piece = SortedPieces::Piece;

// More contacts than these are not shown in full, or not without a click on their letter.
constexpr size_t s_kInFull = 12;
constexpr size_t s_kInOpenSections = 200;

QByteArray OpenIf( bool a_isOpen )
{
    return a_isOpen ? R"( open="")" : "";
}

struct Shown
{
    bool m_isInFull = false;
    bool m_hasSource = false;
};

void WriteContact( QIODevice& a_device, const Piece& a_piece, SortedPieces& a_pieces, const Shown& a_shown )
{
    a_device.write( "<details class=\"contact\"" + a_piece.m_direction + OpenIf( a_shown.m_isInFull ) + ">" );
    a_pieces.Write( a_device, a_piece );
    if ( a_shown.m_hasSource )
        a_device.write( "<p class=\"source\">From <bdi>" + ToHtmlText( a_piece.m_source ).toUtf8() + "</bdi></p>\n" );
    a_device.write( "</div>\n</details>\n" );
}

// What a link leads to is in the section, so that browsers open it.
void WriteSectionHead( QIODevice& a_device, const PageSection& a_section, int a_number )
{
    a_device.write( "<summary><h2>" + ToHtmlText( a_section.m_letter ).toUtf8() + "</h2><span class=\"number\">" +
                    QByteArray::number( static_cast<qint64>( a_section.m_end - a_section.m_begin ) ) +
                    "</span></summary>\n<div class=\"list\" id=\"s" + QByteArray::number( a_number ) + "\">\n" );
}

size_t CountOf( const std::vector<PageSection>& a_sections )
{
    return a_sections.empty() ? 0 : static_cast<size_t>( a_sections.back().m_end - a_sections.front().m_begin );
}

} // namespace

std::vector<PageSection> SectionsOf( const std::vector<Piece>& a_pieces )
{
    std::vector<PageSection> sections;
    for ( auto begin = a_pieces.begin(); begin != a_pieces.end(); )
    {
        const QString letter = begin->m_place.m_section;
        const auto end = std::find_if(
            begin, a_pieces.end(), [&letter]( const Piece& a_piece ) { return a_piece.m_place.m_section != letter; } );
        sections.push_back( { letter, begin, end } );
        begin = end;
    }
    return sections;
}

void WriteLetters( QIODevice& a_device, const std::vector<PageSection>& a_sections )
{
    if ( a_sections.empty() )
        return;
    a_device.write( R"(<nav class="letters" aria-label="Letters">)" );
    int number = 0;
    for ( const PageSection& section : a_sections )
        a_device.write( "<a href=\"#s" + QByteArray::number( ++number ) + "\">" +
                        ToHtmlText( section.m_letter ).toUtf8() + "</a>" );
    a_device.write( "</nav>\n" );
}

void WriteSections( QIODevice& a_device, const std::vector<PageSection>& a_sections, SortedPieces& a_pieces,
                    bool a_isSourceShown )
{
    const size_t count = CountOf( a_sections );
    const Shown shown = { count <= s_kInFull, a_isSourceShown };
    int number = 0;
    a_device.write( shown.m_isInFull ? "<div class=\"few\">\n" : "<div>\n" );
    for ( const PageSection& section : a_sections )
    {
        a_device.write( "<details class=\"letter\"" + OpenIf( count <= s_kInOpenSections ) + ">" );
        WriteSectionHead( a_device, section, ++number );
        for ( auto piece = section.m_begin; piece != section.m_end; ++piece )
            WriteContact( a_device, *piece, a_pieces, shown );
        a_device.write( "</div>\n</details>\n" );
    }
    a_device.write( "</div>\n" );
}

} // namespace PimManager::Tools
