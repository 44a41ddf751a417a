#include "Page/ShownTexts.h"

#include "Page/FieldWords.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// How a value is written, what is always shown, and what links lines or is made use of.
constexpr std::array s_kQuietParameters = {
    "TYPE",  "PREF", "LANGUAGE", "ENCODING",           "CHARSET",           "VALUE",
    "ALTID", "PID",  "INDEX",    "X-ABCROP-RECTANGLE", "X-APPLE-OMIT-YEAR",
};

bool IsOfWord( QChar a_character )
{
    return a_character.isLetterOrNumber() || a_character.isMark() || a_character.isSurrogate();
}

QSet<QString> WordsOf( const QString& a_text )
{
    QSet<QString> words;
    QString word;
    for ( const QChar character : a_text )
    {
        if ( IsOfWord( character ) )
        {
            word += character;
            continue;
        }
        words.insert( word.toCaseFolded() );
        word.clear();
    }
    words.insert( word.toCaseFolded() );
    words.remove( QString() );
    return words;
}

bool AreIn( const QSet<QString>& a_words, const QSet<QString>& a_others )
{
    return std::all_of( a_words.begin(), a_words.end(),
                        [&a_others]( const QString& a_word ) { return a_others.contains( a_word ); } );
}

// A scheme says what the name of the property says as well.
QString ValueOf( const PimContactLine& a_line )
{
    QString text = a_line.Text();
    for ( const char* scheme : { "tel:", "mailto:" } )
    {
        if ( text.startsWith( QLatin1String( scheme ), Qt::CaseInsensitive ) )
            return text.mid( static_cast<int>( qstrlen( scheme ) ) );
    }
    return text;
}

QString ParametersOf( const PimContactLine& a_line )
{
    QString text;
    const QList<QPair<QString, QString>> parameters = a_line.NamedParameters();
    for ( const QPair<QString, QString>& parameter : parameters )
    {
        if ( ShownTexts::IsShownOnItsOwn( parameter.first ) )
            text += parameter.second + QLatin1Char( ' ' );
    }
    return text;
}

bool IsEmpty( const PimContactLine& a_line )
{
    const QStringList values = a_line.Values();
    return a_line.NestedCard().IsNull() &&
           std::all_of( values.begin(), values.end(),
                        []( const QString& a_value ) { return a_value.trimmed().isEmpty(); } );
}

} // namespace

void ShownTexts::Add( const PimContactField& a_field, const QString& a_text )
{
    const QString text = a_text + QLatin1Char( ' ' ) + ShownLabel( a_field );
    const QList<int> ids = a_field.LineIds();
    for ( const int id : ids )
        Add( id, text );
}

void ShownTexts::Add( int a_id, const QString& a_text )
{
    m_texts[a_id] += QLatin1Char( ' ' ) + a_text;
}

bool ShownTexts::IsCovered( const PimContactLine& a_line, int a_id ) const
{
    const QString parameters = ParametersOf( a_line );
    if ( IsEmpty( a_line ) && parameters.isEmpty() )
        return true;
    const bool isInOtherWords = m_values.contains( a_id );
    if ( !isInOtherWords && !m_texts.contains( a_id ) )
        return false;
    const QSet<QString> shown = WordsOf( m_texts.value( a_id ) );
    return AreIn( WordsOf( parameters ), shown ) && ( isInOtherWords || AreIn( WordsOf( ValueOf( a_line ) ), shown ) );
}

bool ShownTexts::IsShownOnItsOwn( const QString& a_parameter )
{
    return std::none_of( s_kQuietParameters.begin(), s_kQuietParameters.end(),
                         [&a_parameter]( const char* a_name ) { return a_parameter == QLatin1String( a_name ); } );
}

bool ShownTexts::IsSaidIn( const QString& a_text, const QString& a_other )
{
    return AreIn( WordsOf( a_text ), WordsOf( a_other ) );
}

} // namespace PimManager::Tools
