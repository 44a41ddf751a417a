#include "SupportNotation.h"

#include <QRegularExpression>

#include <utility>

namespace PimManager::vCard::Documents
{

namespace
{

constexpr int s_kHexadecimal = 16;

struct Sign
{
    const char* m_sign;
    QByteArray m_bytes;
};

const Sign s_kSigns[] = {
    { "\u23CE", QByteArrayLiteral( "\r\n" ) }, { "\u240A", QByteArrayLiteral( "\n" ) },
    { "\u240D", QByteArrayLiteral( "\r" ) },   { "\u21E5", QByteArrayLiteral( "\t" ) },
    { "\u2400", QByteArray( 1, '\0' ) },
};

QByteArray BytesOf( const QString& a_written )
{
    static const QRegularExpression s_kByte( QStringLiteral( "\u2039([0-9A-F]{2})\u203A" ) );
    QByteArray bytes;
    int end = 0;
    QRegularExpressionMatchIterator matches = s_kByte.globalMatch( a_written );
    while ( matches.hasNext() )
    {
        const QRegularExpressionMatch match = matches.next();
        bytes += a_written.mid( end, match.capturedStart() - end ).toUtf8();
        bytes += QByteArray::fromHex( match.captured( 1 ).toLatin1() );
        end = static_cast<int>( match.capturedEnd() );
    }
    bytes += a_written.mid( end ).toUtf8();
    for ( const Sign& sign : s_kSigns )
        bytes.replace( QByteArray( sign.m_sign ), sign.m_bytes );
    return bytes;
}

bool IsUnshowable( QChar a_character )
{
    return a_character.category() == QChar::Other_Control || a_character == QChar::ByteOrderMark ||
           a_character == QChar::LineSeparator || a_character == QChar::ParagraphSeparator;
}

QString SignOf( QChar a_character )
{
    for ( const Sign& sign : s_kSigns )
    {
        if ( QString( a_character ).toUtf8() == sign.m_bytes )
            return QString::fromUtf8( sign.m_sign );
    }
    return QStringLiteral( "\u2039%1\u203A" )
        .arg( QString::number( a_character.unicode(), s_kHexadecimal ).toUpper(), 2, QLatin1Char( '0' ) );
}

} // namespace

SupportExample ExampleOf( const QString& a_written, const QString& a_version )
{
    static const QRegularExpression s_kOwnCard(
        QStringLiteral( "\\A(\u2039EF\u203A\u2039BB\u203A\u2039BF\u203A|\u23CE)?(a\\.)?(BEGIN|END) ?:" ),
        QRegularExpression::CaseInsensitiveOption );
    const QByteArray bytes = BytesOf( a_written );
    if ( s_kOwnCard.match( a_written ).hasMatch() )
        return { bytes, false };
    return { "BEGIN:VCARD\r\nVERSION:" + a_version.toLatin1() + "\r\n" + bytes + "\r\nEND:VCARD\r\n", true };
}

QString Shown( const QString& a_text )
{
    QString shown;
    for ( const QChar character : a_text )
        shown += IsUnshowable( character ) ? SignOf( character ) : QString( character );
    return shown;
}

} // namespace PimManager::vCard::Documents
