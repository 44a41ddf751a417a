/// \file
/// Generates address books with many different names and numbers, for measurements and tests of phone books.
///
/// \code
/// PhoneBookGenerator generator;
/// const QByteArray book = generator.Book( 5000 ); // about 1.2 MB
/// \endcode

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <random>

namespace PimManager::vCard::MadeTexts
{

/// Generates books of cards 3.0 with three words and four numbers each.
///
/// The words are a given name, a family name, and one word of an organisation, a middle name or a nickname. They are
/// made of syllables, so that beginnings are shared and most words are rare; about one in six has an accent. The
/// numbers are German ones in five notations, with and without the country code, and some of other countries.
///
/// The same seed and the same calls result in the same bytes on every machine.
class PhoneBookGenerator
{
public:
    explicit PhoneBookGenerator( quint32 a_seed = 20020 );

    /// \return a text with this many cards and CR LF line endings.
    QByteArray Book( int a_cards );

    /// \return one card.
    QByteArray Card();

    /// \return a name with a capital.
    QByteArray Word();

    /// \return a number in any of the notations.
    QByteArray Number();

    /// \return a random number from 0 to \p a_bound - 1.
    quint32 Below( quint32 a_bound );

private:
    QByteArray Digits( int a_count );
    QByteArray NameLines();
    QByteArray Notation( const QByteArray& a_area, const QByteArray& a_local );

    std::mt19937 m_random;
};

} // namespace PimManager::vCard::MadeTexts
