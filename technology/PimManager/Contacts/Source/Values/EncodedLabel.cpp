#include "Values/EncodedLabel.h"

#include "Lines/LineHead.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/Codec.h"
#include "Text/WhiteSpace.h"
#include "Values/ParameterNames.h"
#include "Values/QuotedPrintable.h"

#include <algorithm>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

/// Removes `NAME=VALUE,` from the start. \return the value; empty if the text begins with something else.
std::string_view TakeField( std::string_view a_name, std::string_view& a_text )
{
    const size_t comma = a_text.find( ',' );
    const bool isField = comma != std::string_view::npos && comma > a_name.size() && a_text[a_name.size()] == '=' &&
                         IsSameWord( a_text.substr( 0, a_name.size() ), a_name );
    if ( !isField )
        return std::string_view();
    const std::string_view value = a_text.substr( a_name.size() + 1, comma - a_name.size() - 1 );
    a_text.remove_prefix( comma + 1 );
    return value;
}

// Other texts may become longer when they are decoded.
bool CanDecode( Charset a_charset, std::string_view a_text )
{
    return a_charset.ContainsAscii() && std::all_of( a_text.begin(), a_text.end(), IsAsciiByte );
}

} // namespace

bool IsEncodedLabel( std::string_view a_parameter )
{
    const size_t name = s_kCustomParameter.size();
    return a_parameter.size() > name + 1 && a_parameter[name] == '(' && a_parameter.back() == ')' &&
           IsSameWord( a_parameter.substr( 0, name ), s_kCustomParameter );
}

void DecodeLabel( std::string_view a_parameter, QByteArray& a_out )
{
    const size_t begin = s_kCustomParameter.size() + 1;
    std::string_view text = a_parameter.substr( begin, a_parameter.size() - begin - 1 );
    std::string_view charset = TakeField( s_kCharsetParameter, text );
    const std::string_view encoding = TakeField( s_kEncodingParameter, text );
    if ( charset.empty() )
        charset = TakeField( s_kCharsetParameter, text );
    text = WithoutOuterSpace( text );
    Empty( a_out );
    if ( EncodingOf( encoding ) != PimContactEncoding::QuotedPrintable )
    {
        Append( a_out, text );
        return;
    }
    QByteArray bytes;
    std::vector<EncodedRun> runs;
    DecodeQuotedPrintable( text, bytes, runs );
    const Charset named = Charset::Of( charset );
    DecodeTo( CanDecode( named, text ) ? named : Charset(), ViewOf( bytes ), a_out );
}

} // namespace PimManager::Contacts
