#include "Numbers/NumberWords.h"

#include <algorithm>
#include <array>

namespace PimManager::PhoneBook
{

namespace
{

using namespace std::string_view_literals;

constexpr QStringView s_kExtensionWords =
    u"x ext extn extension extensión extensão int interno interne anexo poste ramal dw durchwahl"
    u" klappe nebenstelle toestel tst wew wewn linka klapka mellék dahili anknytning anknytn lokal"
    u" alanumero доб добавочный внутр вн εσωτ εσωτερικό 内線 内线 分机 分機 转 轉 내선 שלוחה داخلی تحويلة";

constexpr std::array s_kServices = { "800"sv, "822"sv, "833"sv, "844"sv, "855"sv, "866"sv, "877"sv, "888"sv, "900"sv };
constexpr size_t s_kServiceSize = 3;
// The digits after the prefix. Further letters are not dialled.
constexpr size_t s_kServiceDigits = 7;
constexpr std::array s_kLongServices = { "0800"sv, "0900"sv, "1300"sv };

bool StartsWith( std::string_view a_text, std::string_view a_start )
{
    return a_text.substr( 0, a_start.size() ) == a_start;
}

} // namespace

bool IsExtensionWord( QStringView a_word )
{
    for ( QStringView rest = s_kExtensionWords; !rest.isEmpty(); )
    {
        const auto end = rest.indexOf( QLatin1Char( ' ' ) );
        const qsizetype size = end < 0 ? rest.size() : end;
        if ( rest.left( size ).compare( a_word, Qt::CaseInsensitive ) == 0 )
            return true;
        rest = rest.mid( std::min<qsizetype>( size + 1, rest.size() ) );
    }
    return false;
}

size_t LettersAfter( std::string_view a_digits )
{
    const auto isStart = [a_digits]( std::string_view a_start ) { return StartsWith( a_digits, a_start ); };
    const size_t begin = StartsWith( a_digits, "1" ) ? 1 : 0;
    const std::string_view service = a_digits.substr( begin, s_kServiceSize );
    size_t size = 0;
    if ( std::any_of( s_kLongServices.begin(), s_kLongServices.end(), isStart ) )
        size = s_kLongServices[0].size();
    else if ( std::find( s_kServices.begin(), s_kServices.end(), service ) != s_kServices.end() )
        size = begin + s_kServiceSize;
    return size == 0 ? 0 : size + s_kServiceDigits - std::min( size + s_kServiceDigits, a_digits.size() );
}

char KeyOfLetter( char16_t a_letter )
{
    constexpr std::string_view s_kKeys = "22233344455566677778889999";
    const char16_t letter = a_letter | 0x20;
    return letter >= u'a' && letter <= u'z' ? s_kKeys[static_cast<size_t>( letter - u'a' )] : '\0';
}

} // namespace PimManager::PhoneBook
