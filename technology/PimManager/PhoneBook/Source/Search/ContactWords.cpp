#include "Search/ContactWords.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace PimManager::PhoneBook
{

using namespace Contacts;

namespace
{

/// What the bytes of a card show without reading its lines. A sign may be in any text, so it only means "perhaps".
struct CardSigns
{
    /// SORT-STRING or SORT-AS.
    bool m_hasSortText = false;
    /// A property of a program, such as X-PHONETIC-LAST-NAME.
    bool m_hasExtension = false;
    /// A semicolon that does not divide the parts of a name.
    bool m_hasEscape = false;
};

bool EndsWith( std::string_view a_text, std::string_view a_lower )
{
    constexpr char s_kLowerCase = 0x20;
    return a_text.size() >= a_lower.size() &&
           std::equal( a_lower.rbegin(), a_lower.rend(), a_text.rbegin(),
                       []( char a_first, char a_second ) { return a_first == ( a_second | s_kLowerCase ); } );
}

CardSigns SignsOf( std::string_view a_card )
{
    constexpr size_t s_kNear = 5;
    CardSigns signs;
    signs.m_hasEscape = a_card.find( '\\' ) != std::string_view::npos;
    for ( size_t sign = a_card.find( '=' ); sign != std::string_view::npos; sign = a_card.find( '=', sign + 1 ) )
        signs.m_hasEscape = signs.m_hasEscape || a_card.substr( sign + 1, 1 ) == "3";
    for ( size_t dash = a_card.find( '-' ); dash != std::string_view::npos; dash = a_card.find( '-', dash + 1 ) )
    {
        const size_t size = std::min( dash, s_kNear );
        const std::string_view before = a_card.substr( dash - size, size );
        // Most dashes are in numbers.
        if ( size > 0 && before.back() >= '0' && before.back() <= '9' )
            continue;
        // A name may be folded.
        const bool isFolded = before.find( '\n' ) != std::string_view::npos;
        signs.m_hasSortText = signs.m_hasSortText || EndsWith( before, "sort" ) || isFolded;
        signs.m_hasExtension = signs.m_hasExtension || EndsWith( before, "x" ) || isFolded;
    }
    return signs;
}

CardSigns SignsOf( const PimContactCard& a_card )
{
    const QByteArray bytes = a_card.Bytes();
    return SignsOf( std::string_view( bytes.constData(), static_cast<size_t>( bytes.size() ) ) );
}

QString Joined( const QString& a_first, const QString& a_second )
{
    if ( a_first.isEmpty() || a_second.isEmpty() )
        return a_first.isEmpty() ? a_second : a_first;
    return a_first + QLatin1Char( ' ' ) + a_second;
}

QString SortNameOf( const PimContact& a_contact, PimPhoneBookSorting a_sorting )
{
    if ( a_sorting == PimPhoneBookSorting::FamilyName )
        return a_contact.SortName();
    const PimContactName name = a_contact.Name();
    const QStringList sortAs = name.SortAs();
    const QString text = Joined( sortAs.value( 1, name.Given() ), sortAs.value( 0, name.Family() ) );
    return text.isEmpty() ? a_contact.SortName() : text;
}

bool HasOuterSpace( QStringView a_text )
{
    return !a_text.isEmpty() && ( a_text.front().isSpace() || a_text.back().isSpace() );
}

/// The text of a plain N: five parts without commas, and a family name and a given name.
struct PlainName
{
    explicit PlainName( const QString& a_text )
    {
        constexpr size_t s_kParts = 5;
        std::array<QStringView, s_kParts> parts;
        size_t part = 0;
        const QChar* begin = a_text.constData();
        const QChar* const end = begin + a_text.size();
        for ( const QChar* place = begin; place != end; ++place )
        {
            if ( *place == QLatin1Char( ',' ) || ( *place == QLatin1Char( ';' ) && part + 1 == s_kParts ) )
                return;
            if ( *place != QLatin1Char( ';' ) )
                continue;
            parts[part++] = QStringView( begin, place );
            begin = place + 1;
        }
        m_isPlain = part + 1 == s_kParts && !parts[0].isEmpty() && !parts[1].isEmpty() && !HasOuterSpace( parts[0] ) &&
                    !HasOuterSpace( parts[1] );
        m_family = parts[0];
        m_given = parts[1];
        m_additional = parts[2];
    }

    bool m_isPlain = false;
    QStringView m_family;
    QStringView m_given;
    QStringView m_additional;
};

QString Joined( QStringView a_first, QStringView a_second )
{
    QString name;
    name.reserve( static_cast<int>( a_first.size() + a_second.size() ) + 1 );
    name.append( a_first.data(), static_cast<int>( a_first.size() ) );
    name.append( QLatin1Char( ' ' ) );
    name.append( a_second.data(), static_cast<int>( a_second.size() ) );
    return name;
}

/// Removes a beginning and one blank after it.
bool Take( QStringView& a_text, QStringView a_beginning )
{
    if ( !a_text.startsWith( a_beginning ) || a_text.size() == a_beginning.size() ||
         a_text.at( a_beginning.size() ) != QLatin1Char( ' ' ) )
        return false;
    a_text = a_text.mid( a_beginning.size() + 1 );
    return true;
}

/// \return true if a text is the given, the additional and the family name.
bool IsSpoken( QStringView a_text, const PlainName& a_name )
{
    if ( !a_name.m_isPlain || !Take( a_text, a_name.m_given ) )
        return false;
    if ( !a_name.m_additional.isEmpty() )
        Take( a_text, a_name.m_additional );
    return a_text == a_name.m_family;
}

/// \param a_text the text of the plain name, which is not needed any more.
QString SortNameOf( const PlainName& a_name, QString& a_text, PimPhoneBookSorting a_sorting )
{
    if ( a_sorting == PimPhoneBookSorting::GivenName )
        return Joined( a_name.m_given, a_name.m_family );
    const auto familyEnd = static_cast<int>( a_name.m_family.size() );
    const auto givenEnd = familyEnd + 1 + static_cast<int>( a_name.m_given.size() );
    QString name = std::move( a_text );
    name.truncate( givenEnd );
    name[familyEnd] = QLatin1Char( ' ' );
    return name;
}

} // namespace

void ContactWords::Clear()
{
    m_names.Clear();
    m_organisations.Clear();
    m_name.clear();
    m_formattedName.clear();
    m_namesRead = 0;
}

void ContactWords::Add( const PimContactLine& a_line )
{
    if ( a_line.IsNamed( QLatin1String( "N" ) ) )
    {
        const QString text = a_line.Text();
        m_names.Append( text );
        if ( m_name.isEmpty() )
            m_name = text;
        ++m_namesRead;
    }
    else if ( a_line.IsNamed( QLatin1String( "FN" ) ) )
    {
        // The first one is kept, because it mostly has the words of N.
        m_names.Append( m_formattedName );
        m_formattedName = a_line.Text();
    }
    else if ( a_line.IsNamed( QLatin1String( "NICKNAME" ) ) )
        m_names.Append( a_line.Text() );
    else if ( a_line.IsNamed( QLatin1String( "ORG" ) ) )
        m_organisations.Append( a_line.Text() );
}

QString ContactWords::Finish( const PimContactCard& a_card, PimPhoneBookSorting a_sorting )
{
    const PlainName name( m_name );
    if ( !IsSpoken( m_formattedName, name ) )
        m_names.Append( m_formattedName );
    const CardSigns signs = SignsOf( a_card );
    const bool hasNames = !m_names.Chains().empty() || !m_organisations.Chains().empty();
    const bool isPlain = name.m_isPlain && m_namesRead == 1 && !signs.m_hasSortText && !signs.m_hasEscape;
    if ( isPlain && hasNames && !signs.m_hasExtension )
        return SortNameOf( name, m_name, a_sorting );
    const PimContact contact( a_card );
    if ( signs.m_hasExtension )
        AddFurtherNames( contact );
    if ( m_names.Chains().empty() && m_organisations.Chains().empty() )
        m_names.Append( contact.DisplayName() );
    return isPlain ? SortNameOf( name, m_name, a_sorting ) : SortNameOf( contact, a_sorting );
}

// What programs write instead of, or in addition to, standard properties.
void ContactWords::AddFurtherNames( const PimContact& a_contact )
{
    const PimContactName name = a_contact.Name();
    m_names.Append( name.MaidenName() );
    m_names.Append( Joined( Joined( name.PhoneticFamily(), name.PhoneticMiddle() ), name.PhoneticGiven() ) );
    for ( const PimContactText& nickname : a_contact.Nicknames() )
        m_names.Append( nickname.Text() );
}

} // namespace PimManager::PhoneBook
