/// \file
/// A second reader of whole texts, written independently of the component to judge it. It uses no expression per
/// character, no stream and no log. It shares no code with the component and is far too simple to be fast.

#pragma once

#include "PimVCardTestResults.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace PimManager::vCard
{

/// Reads the cards of a text. Does not support U+FEFF.
class PlainReading
{
public:
    /// \param a_text the text as a parser would receive it.
    explicit PlainReading( const QByteArray& a_text ) :
        m_bytes( Prepared( a_text ) )
    {
        GoTo( 0 );
    }

    std::vector<CardData> Cards()
    {
        std::vector<CardData> cards;
        int lastRecovery = -1;
        while ( !IsAtEnd() )
        {
            while ( m_hasStarted && IsOneOf( " \t\r\n" ) )
                ++m_place;
            if ( IsAtEnd() )
                break;
            if ( const auto card = Card() )
                cards.push_back( *card );
            else
                lastRecovery = Recover( lastRecovery );
        }
        return cards;
    }

private:
    using Class = bool ( * )( ushort );

    static QByteArray Prepared( const QByteArray& a_text )
    {
        static const QRegularExpression s_encodedBreak( QStringLiteral( "=0D=0A=\\R[ \\t]*" ) );
        static const QRegularExpression s_fold(
            QStringLiteral( "(?<!=)(\\r\\n|\\r(?!\\n)|(?<!\\r)\\n|[\\x0B\\x0C\\x{85}\\x{2028}\\x{2029}])[ \\t]+" ) );
        QString text = QString::fromUtf8( a_text.constData(), static_cast<int>( qstrlen( a_text.constData() ) ) );
        text.replace( s_encodedBreak, QStringLiteral( " " ) );
        return text.remove( s_fold ).toUtf8();
    }

    // Continues at a byte, which may be inside a character. Each unit remembers the byte at which it begins.
    void GoTo( int a_byte )
    {
        m_units.clear();
        for ( int byte = a_byte; byte < m_bytes.size(); )
        {
            const int length = LengthOfCharacter( static_cast<uchar>( m_bytes.at( byte ) ) );
            for ( const QChar unit : QString::fromUtf8( m_bytes.constData() + byte, length ) )
                m_units.emplace_back( unit.unicode(), byte );
            byte += length;
        }
        m_place = 0;
        m_hasStarted = false;
    }

    static int LengthOfCharacter( uchar a_lead )
    {
        if ( a_lead < 0xC0 )
            return 1;
        return a_lead < 0xE0 ? 2 : a_lead < 0xF0 ? 3 : 4;
    }

    int Size() const { return static_cast<int>( m_units.size() ); }
    ushort At( int a_place ) const { return a_place < Size() ? m_units[static_cast<size_t>( a_place )].first : 0; }
    int ByteAt( int a_place ) const
    {
        return a_place < Size() ? m_units[static_cast<size_t>( a_place )].second : static_cast<int>( m_bytes.size() );
    }
    // The character at m_place was read. Nothing is left if no character follows it.
    int FirstUnread() const { return std::min( Size(), m_place + ( m_hasStarted ? 1 : 0 ) ); }
    bool IsAtEnd() const { return FirstUnread() == Size(); }

    bool IsOneOf( const char* a_characters ) const
    {
        const ushort unit = At( m_place );
        return unit != 0 && unit < 0x80 && std::strchr( a_characters, unit ) != nullptr;
    }

    bool Take( char a_character )
    {
        m_hasStarted = true;
        const bool isThere = At( m_place ) == static_cast<uchar>( a_character );
        m_place += isThere ? 1 : 0;
        return isThere;
    }

    static bool IsName( ushort a_unit )
    {
        return ( a_unit >= 'a' && a_unit <= 'z' ) || ( a_unit >= 'A' && a_unit <= 'Z' ) ||
               ( a_unit >= '0' && a_unit <= '9' ) || a_unit == '-';
    }
    static bool IsBase64( ushort a_unit )
    {
        return ( IsName( a_unit ) && a_unit != '-' ) || a_unit == '+' || a_unit == '/' || a_unit == '=';
    }
    static bool IsText( ushort a_unit )
    {
        return a_unit == ' ' || a_unit == '\t' || a_unit >= 0x80 || ( a_unit > ' ' && a_unit < 0x7F );
    }
    static bool IsQuoted( ushort a_unit ) { return IsText( a_unit ) && a_unit != '"'; }
    static bool IsValue( ushort a_unit )
    {
        return ( IsText( a_unit ) && a_unit != ';' && a_unit != '\\' ) || a_unit == '\n';
    }
    static bool IsLineBreak( ushort a_unit )
    {
        return ( a_unit >= '\n' && a_unit <= '\r' ) || a_unit == 0x85 || a_unit == 0x2028 || a_unit == 0x2029;
    }

    QString Run( Class a_isIn )
    {
        m_hasStarted = true;
        QString run;
        while ( m_place < Size() && a_isIn( At( m_place ) ) )
        {
            run += QChar( At( m_place++ ) );
            while ( At( m_place ) == '\\' )
            {
                if ( !TakeBackslash( a_isIn, run ) )
                    return run;
            }
        }
        return run;
    }

    // A backslash inside a run is read with the character after it, or lost. Returns false if the run ends here.
    bool TakeBackslash( Class a_isIn, QString& a_run )
    {
        const ushort next = At( m_place + 1 );
        const bool isEscape = a_isIn == IsValue && ( next == '\\' || next == ',' || next == ';' || next == ':' );
        if ( next == '\r' && a_isIn( '\\' ) )
            a_run += QChar( At( m_place++ ) );
        else if ( next == '\r' )
            m_units[static_cast<size_t>( m_place )].first = '\r'; // It is read twice.
        else
            m_place += isEscape ? 2 : 1;
        if ( isEscape )
            a_run += QChar( next );
        return isEscape || ( next == '\r' && a_isIn( '\\' ) );
    }

    static bool IsWord( const std::string& a_text, const char* a_word )
    {
        return qstricmp( a_text.c_str(), a_word ) == 0 && a_text.size() == qstrlen( a_word );
    }
    static bool IsFrame( const PropertyData& a_line, const char* a_word )
    {
        return IsWord( a_line.m_name, a_word ) && a_line.m_values.size() == 1 &&
               IsWord( a_line.m_values.front(), "VCARD" );
    }

    std::optional<CardData> Card()
    {
        m_hasFailed = false;
        CardData card;
        std::optional<PropertyData> line = Line();
        if ( !line || !IsFrame( *line, "BEGIN" ) )
            return std::nullopt;
        while ( ( line = Line() ) && !IsWord( line->m_name, "END" ) )
            card.push_back( *line );
        return line && IsFrame( *line, "END" ) ? std::make_optional( card ) : std::nullopt;
    }

    std::optional<PropertyData> Line()
    {
        PropertyData line;
        QString group;
        QString name = Run( IsName );
        while ( Take( '.' ) )
        {
            group += name + QLatin1Char( '.' );
            name = Run( IsName );
        }
        line.m_group = group.left( group.size() - 1 ).toStdString();
        line.m_name = name.toStdString();
        const bool isFrame = IsWord( line.m_name, "BEGIN" ) || IsWord( line.m_name, "END" );
        if ( name.isEmpty() || ( !isFrame && !IsOneOf( ":;" ) ) )
            return std::nullopt;
        while ( Take( ';' ) )
        {
            if ( !Parameter( line ) )
                return std::nullopt;
        }
        if ( m_hasFailed || ( !isFrame && !IsOneOf( ":" ) ) || !TakeColon( isFrame ) || !Values( line ) ||
             Run( IsLineBreak ).isEmpty() )
            return std::nullopt;
        return line;
    }

    bool TakeColon( bool a_isFrame )
    {
        const auto skipBlanks = [this, a_isFrame]
        {
            while ( a_isFrame && IsOneOf( " \t" ) )
                ++m_place;
        };
        skipBlanks();
        const bool isThere = Take( ':' );
        if ( isThere )
            skipBlanks();
        return isThere;
    }

    bool Parameter( PropertyData& a_line )
    {
        if ( IsOneOf( " \t" ) )
            ++m_place;
        QString name;
        QString value = Run( IsName );
        if ( value.isEmpty() || !IsOneOf( ",:;=" ) )
            return false;
        if ( Take( '=' ) )
        {
            name = value;
            value = ParameterValue();
            if ( value.isEmpty() )
                return false;
        }
        while ( Take( ',' ) )
        {
            const QString element = ParameterValue();
            if ( element.isEmpty() || !IsOneOf( ",:;" ) )
                return false;
            value += QLatin1Char( ',' ) + element;
        }
        a_line.m_parameters.push_back( { name.toStdString(), value.toStdString() } );
        return IsOneOf( ":;" ) && NoteEncoding( name, value );
    }

    // A quote that does not close makes the line fail, but the rest of the list is still read.
    QString ParameterValue()
    {
        if ( !Take( '"' ) )
            return Run( IsName );
        const QString text = Run( IsQuoted );
        if ( !text.isEmpty() && Take( '"' ) )
            return QLatin1Char( '"' ) + text + QLatin1Char( '"' );
        m_hasFailed = true;
        return QStringLiteral( "\"" );
    }

    bool NoteEncoding( const QString& a_name, const QString& a_value )
    {
        const QString value = a_value.toUpper();
        if ( a_name.toUpper() != QStringLiteral( "ENCODING" ) )
            return true;
        m_isQuotedPrintable |= value.contains( QStringLiteral( "QUOTED-PRINTABLE" ) );
        m_isBase64 |= value.contains( QStringLiteral( "BASE64" ) ) || value == QStringLiteral( "B" );
        return !m_isQuotedPrintable || !m_isBase64;
    }

    bool Values( PropertyData& a_line )
    {
        bool isSeparated = true;
        while ( isSeparated )
        {
            QString value = Run( m_isBase64 ? IsBase64 : IsValue );
            isSeparated = Take( ';' );
            while ( !isSeparated && m_isQuotedPrintable && value.endsWith( QLatin1Char( '=' ) ) )
            {
                if ( Run( IsLineBreak ) != QStringLiteral( "\r\n" ) )
                    return false;
                value.chop( 1 );
                value += Run( IsValue );
                isSeparated = Take( ';' );
            }
            a_line.m_values.push_back( value.toStdString() );
        }
        m_isQuotedPrintable = false;
        m_isBase64 = false;
        return true;
    }

    // Moves to the next line with BEGIN and returns its position. The rest of the line that failed is searched too.
    int Recover( int a_lastRecovery )
    {
        static const QRegularExpression s_begin( QStringLiteral( "BEGIN[ \t]*:[ \t]*VCARD" ),
                                                 QRegularExpression::CaseInsensitiveOption );
        QString line;
        int end = FirstUnread();
        while ( end < Size() && !s_begin.match( line ).hasMatch() )
        {
            line.clear();
            while ( end < Size() && At( end ) != '\n' )
                line += QChar( At( end++ ) );
            end += end < Size() ? 1 : 0;
            if ( line.endsWith( QLatin1Char( '\r' ) ) )
                line.chop( 1 );
        }
        // The way back is measured in characters but applied in bytes.
        int target = ByteAt( end );
        const int wayBack = static_cast<int>( line.size() ) + 2;
        if ( end < Size() && target >= wayBack )
            target -= wayBack;
        GoTo( target > a_lastRecovery ? target : a_lastRecovery + 1 );
        return std::max( target, a_lastRecovery + 1 );
    }

    const QByteArray m_bytes;
    std::vector<std::pair<ushort, int>> m_units;
    int m_place = 0;
    // False until the character at m_place was tested.
    bool m_hasStarted = false;
    bool m_isQuotedPrintable = false;
    bool m_isBase64 = false;
    bool m_hasFailed = false;
};

} // namespace PimManager::vCard
