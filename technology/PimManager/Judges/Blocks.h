/// \file
/// The common part of the judges in C++. They read blocks of vCards and print what a library finds in each of them.

#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <cstdio>
#include <iostream>
#include <string>

namespace PimManager::Judges
{

/// A picture as judges describe it: its size and SHA-1.
inline QJsonObject Picture( const QByteArray& a_bytes )
{
    const QByteArray hash = QCryptographicHash::hash( a_bytes, QCryptographicHash::Sha1 ).toHex();
    return { { QStringLiteral( "size" ), a_bytes.size() }, { QStringLiteral( "sha1" ), QString::fromLatin1( hash ) } };
}

/// The main function of a judge. Standard input consists of blocks: a line with a number of bytes, followed by these
/// bytes. For each block, the function prints a line of JSON: an array with an object for each card.
/// \param a_read  returns this array for the text of a block.
template <class Read>
int Run( Read a_read )
{
    std::string head;
    while ( std::getline( std::cin, head ) )
    {
        QByteArray text( std::stoi( head ), '\0' );
        if ( !std::cin.read( text.data(), text.size() ) )
            return 2;
        const QByteArray answer = QJsonDocument( QJsonArray( a_read( text ) ) ).toJson( QJsonDocument::Compact );
        std::puts( answer.constData() );
    }
    return 0;
}

} // namespace PimManager::Judges
