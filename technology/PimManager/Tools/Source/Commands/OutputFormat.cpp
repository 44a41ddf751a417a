#include "Commands/OutputFormat.h"

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

namespace
{

struct FormatWord
{
    const char* m_word;
    OutputFormat m_format;
};

constexpr std::array s_kNames = {
    FormatWord{ "2.1", OutputFormat::V21 },
    FormatWord{ "3.0", OutputFormat::V30 },
    FormatWord{ "4.0", OutputFormat::V40 },
    FormatWord{ "jcard", OutputFormat::JCard },
    FormatWord{ "csv", OutputFormat::Csv },
    FormatWord{ "json", OutputFormat::Json },
    FormatWord{ "json-lines", OutputFormat::JsonLines },
    FormatWord{ "html", OutputFormat::Html },
};

constexpr std::array s_kEndings = {
    FormatWord{ ".vcf", OutputFormat::V30 },         FormatWord{ ".vcard", OutputFormat::V30 },
    FormatWord{ ".jcard", OutputFormat::JCard },     FormatWord{ ".jcf", OutputFormat::JCard },
    FormatWord{ ".csv", OutputFormat::Csv },         FormatWord{ ".json", OutputFormat::Json },
    FormatWord{ ".jsonl", OutputFormat::JsonLines }, FormatWord{ ".ndjson", OutputFormat::JsonLines },
    FormatWord{ ".html", OutputFormat::Html },       FormatWord{ ".htm", OutputFormat::Html },
};

template <typename Words, typename Condition>
std::optional<OutputFormat> Find( const Words& a_words, Condition a_condition )
{
    const auto* const found = std::find_if( a_words.begin(), a_words.end(), a_condition );
    return found == a_words.end() ? std::nullopt : std::optional( found->m_format );
}

} // namespace

QStringList FormatNames()
{
    QStringList names;
    for ( const FormatWord& word : s_kNames )
        names << QString::fromLatin1( word.m_word );
    return names;
}

std::optional<OutputFormat> FormatNamed( const QByteArray& a_name )
{
    return Find( s_kNames, [&a_name]( const FormatWord& a_word ) { return a_name == a_word.m_word; } );
}

std::optional<OutputFormat> FormatByEnding( const QByteArray& a_fileName )
{
    const QByteArray name = a_fileName.toLower();
    return Find( s_kEndings, [&name]( const FormatWord& a_word ) { return name.endsWith( a_word.m_word ); } );
}

} // namespace PimManager::Tools
