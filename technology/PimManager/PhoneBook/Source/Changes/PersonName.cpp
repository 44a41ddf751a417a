#include "Changes/PersonName.h"

#include "Search/FoldedText.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContact;

namespace
{

// Longer names do not occur.
constexpr int s_kMostCharacters = 256;
constexpr int s_kMostWords = 8;
// Short words are others' names if a letter changes: Jan and Jana, Max and Maxi.
constexpr int s_kLeastForTypo = 4;
constexpr int s_kLeastForOnlyWord = 6;
constexpr int s_kLeastWordsForPart = 2;

template <typename Fields>
QString FirstTextOf( const Fields& a_fields )
{
    for ( const auto& field : a_fields )
    {
        if ( !field.Text().trimmed().isEmpty() )
            return field.Text();
    }
    return QString();
}

QString OrganisationOf( const PimContact& a_contact )
{
    const auto organisations = a_contact.Organisations();
    return organisations.isEmpty() ? QString() : organisations.constFirst().Name();
}

bool HasName( const PimContact& a_contact )
{
    return !FirstTextOf( a_contact.FormattedNames() ).isEmpty() || !a_contact.Name().IsEmpty() ||
           !FirstTextOf( a_contact.Nicknames() ).isEmpty();
}

// The display name may be a mail address or a number, which is no name.
QString NameOf( const PimContact& a_contact )
{
    return HasName( a_contact ) ? a_contact.DisplayName() : OrganisationOf( a_contact );
}

QStringList WordsIn( const QString& a_text )
{
    FoldedText text;
    text.Append( a_text.left( s_kMostCharacters ) );
    QStringList words;
    for ( const FoldedText::Chain& chain : text.Chains() )
    {
        for ( quint32 start = 0; start < chain.m_starts; ++start )
        {
            const quint32 begin = text.StartAt( chain, start ).m_plain;
            if ( !text.StartAt( chain, start ).m_isWord || words.size() == s_kMostWords )
                continue;
            const std::string_view word = text.Text( begin, text.EndOf( chain, start ).m_plain );
            words.append( QString::fromUtf8( word.data(), static_cast<int>( word.size() ) ) );
        }
    }
    return words;
}

QStringList Missing( const QStringList& a_words, const QStringList& a_from )
{
    QStringList missing;
    std::set_difference( a_words.begin(), a_words.end(), a_from.begin(), a_from.end(), std::back_inserter( missing ) );
    return missing;
}

// A name of one word has no other word that agrees.
bool IsTypoOfOneWord( const QStringList& a_first, const QStringList& a_second, bool a_isPartOfName )
{
    if ( a_first.size() != 1 || a_second.size() != 1 )
        return false;
    const auto length = std::min( a_first.first().size(), a_second.first().size() );
    return length >= ( a_isPartOfName ? s_kLeastForTypo : s_kLeastForOnlyWord ) &&
           IsTypo( a_first.first(), a_second.first() );
}

} // namespace

PersonName::PersonName( const PimContact& a_contact ) :
    m_words( WordsIn( NameOf( a_contact ) ) ),
    m_letters( m_words.join( QString() ) )
{
    std::sort( m_words.begin(), m_words.end() );
    m_key = m_words.join( QLatin1Char( ' ' ) );
}

NameAgreement PersonName::Compare( const PersonName& a_other ) const
{
    if ( m_words == a_other.m_words )
        return NameAgreement::Same;
    const QStringList here = Missing( m_words, a_other.m_words );
    const QStringList there = Missing( a_other.m_words, m_words );
    const auto common = m_words.size() - here.size();
    if ( ( here.isEmpty() || there.isEmpty() ) && common >= s_kLeastWordsForPart )
        return NameAgreement::Part;
    return m_letters == a_other.m_letters || IsTypoOfOneWord( here, there, common > 0 ) ? NameAgreement::Typo
                                                                                        : NameAgreement::None;
}

bool IsTypo( const QString& a_first, const QString& a_second )
{
    const QString& longer = a_first.size() < a_second.size() ? a_second : a_first;
    const QString& shorter = a_first.size() < a_second.size() ? a_first : a_second;
    const auto place = std::mismatch( shorter.begin(), shorter.end(), longer.begin() );
    const QStringView shortRest = QStringView( shorter ).mid( place.first - shorter.begin() );
    const QStringView longRest = QStringView( longer ).mid( place.second - longer.begin() );
    if ( longRest.size() > shortRest.size() )
        return longRest.mid( 1 ) == shortRest;
    if ( shortRest.isEmpty() || longRest.size() != shortRest.size() )
        return false;
    const bool isWrong = longRest.mid( 1 ) == shortRest.mid( 1 );
    const bool isExchanged = longRest.size() > 1 && longRest[0] == shortRest[1] && longRest[1] == shortRest[0] &&
                             longRest.mid( 2 ) == shortRest.mid( 2 );
    return isWrong || isExchanged;
}

} // namespace PimManager::PhoneBook
