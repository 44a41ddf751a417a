#include "Contact/LabelMarks.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

namespace PimManager::Contacts
{

std::string_view Unwrapped( std::string_view a_text, std::string_view a_begin, std::string_view a_end )
{
    const size_t marks = a_begin.size() + a_end.size();
    const bool isWrapped =
        a_text.size() >= marks && a_text.substr( 0, a_begin.size() ) == a_begin && EndsWith( a_text, a_end );
    return isWrapped ? a_text.substr( a_begin.size(), a_text.size() - marks ) : a_text;
}

std::string_view WithoutLabelMarks( std::string_view a_label )
{
    return WithoutOuterSpace( Unwrapped( WithoutOuterSpace( a_label ), "_$!<", ">!$_" ) );
}

} // namespace PimManager::Contacts
