/// \file
/// Finds the end of a JSON value that is passed in pieces.

#pragma once

#include <QtGlobal>

namespace PimManager::Contacts
{

/// Counts brackets and braces outside strings. It checks nothing else, and nesting needs no memory.
class JsonValueSearch
{
public:
    /// \param a_first the first byte of the value, which is not passed to Find().
    void Begin( char a_first );

    /// \return the end of the value in the piece; null if the value continues after it.
    const char* Find( const char* a_begin, const char* a_end );

    /// The same, but ends after the first string inside an array.
    const char* FindString( const char* a_begin, const char* a_end );

private:
    bool PassString( const char*& a_place, const char* a_end );

    qint64 m_depth = 0;
    bool m_isWord = false;
    bool m_isInString = false;
    bool m_isEscaped = false;
};

} // namespace PimManager::Contacts
