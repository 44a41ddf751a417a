/// \file
/// Where the plain implementation can judge the component.

#pragma once

#include <QByteArray>

namespace PimManager
{

/// A text stream does not know its place any more once a seek led into the middle of a character that U+FEFF follows:
/// it takes the U+FEFF for a byte order mark. Its place decides on the recovery from a fault, so such texts are left
/// out. The stream of Qt 6 also keeps the state of its decoder over a seek, and loses it when it is asked for its place
/// twice: with Qt 6 every text with a U+FEFF behind its start is left out.
/// \param a_prepared the text that is scanned.
inline bool IsJudgeSure( const QByteArray& a_prepared )
{
    constexpr bool s_isOfQt6 = QT_VERSION >= QT_VERSION_CHECK( 6, 0, 0 );
    constexpr const char* byteOrderMark = "\xEF\xBB\xBF";
    for ( auto mark = a_prepared.indexOf( byteOrderMark ); mark >= 0;
          mark = a_prepared.indexOf( byteOrderMark, mark + 1 ) )
    {
        if ( mark > 0 && ( s_isOfQt6 || static_cast<uchar>( a_prepared.at( mark - 1 ) ) >= 0x80 ) )
            return false;
    }
    return true;
}

} // namespace PimManager
