#include "Contact/LabelMarks.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kBegin = "_$!<";
constexpr std::string_view s_kEnd = ">!$_";

} // namespace

std::string_view Unwrapped( std::string_view a_text, std::string_view a_begin, std::string_view a_end )
{
    const size_t marks = a_begin.size() + a_end.size();
    const bool isWrapped =
        a_text.size() >= marks && a_text.substr( 0, a_begin.size() ) == a_begin && EndsWith( a_text, a_end );
    return isWrapped ? a_text.substr( a_begin.size(), a_text.size() - marks ) : a_text;
}

std::string_view WithoutLabelMarks( std::string_view a_label )
{
    return WithoutOuterSpace( Unwrapped( WithoutOuterSpace( a_label ), s_kBegin, s_kEnd ) );
}

std::string_view BuiltInLabel( std::string_view a_label )
{
    const std::string_view label = WithoutOuterSpace( a_label );
    const std::string_view text = Unwrapped( label, s_kBegin, s_kEnd );
    return text.size() < label.size() ? WithoutOuterSpace( text ) : std::string_view();
}

} // namespace PimManager::Contacts
