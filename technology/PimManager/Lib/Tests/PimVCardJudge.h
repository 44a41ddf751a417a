/// \file
/// Says for which texts the plain implementation can judge the component.

#pragma once

#include <QByteArray>

namespace PimManager
{

/// A text stream loses its position after a seek into the middle of a character that is followed by U+FEFF, because it
/// takes the U+FEFF for a byte order mark. The recovery from an error depends on the position, so such texts are
/// excluded. The stream of Qt 6 also keeps the state of its decoder across a seek, and loses it if its position is
/// requested twice. With Qt 6, every text with a U+FEFF after its start is excluded.
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
