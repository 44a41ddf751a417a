/// \file
/// Address books in a language and a character set.

#pragma once

#include "Charsets/RegionalNames.h"

#include <QByteArray>

#include <random>

namespace PimManager::Tools
{

/// Makes cards of version 2.1 with names, a company, an address and a note, in UTF-8. The same seed makes the same
/// cards everywhere.
class RegionalBook
{
public:
    RegionalBook( const RegionalNames& a_names, unsigned a_seed );

    QByteArray Cards( int a_count );

private:
    QByteArray Card();
    QByteArray One( const QStringList& a_words );

    RegionalNames m_names;
    std::minstd_rand m_random;
};

/// \param a_charset the name that iconv() of the system knows.
/// \return the text in another character set. A test fails if it has characters that are not in the set.
QByteArray Encoded( const QByteArray& a_utf8, const char* a_charset );

} // namespace PimManager::Tools
