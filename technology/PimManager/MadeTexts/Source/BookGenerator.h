/// \file
/// Generates phone books for measurements.
///
/// \code
/// BookGenerator generator;
/// const QByteArray book = generator.Book( BookKind::Text, 3000 ); // about 1.4 MB
/// \endcode

#pragma once

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#include <random>

namespace PimManager::vCard::MadeTexts
{

/// The kinds of generated books. Every card of every book can be parsed.
enum class BookKind
{
    /// Typical cards of phones, with about 481 bytes and 11 lines each. Two thirds are 3.0, with a group, parameters
    /// and a folded NOTE. One third is 2.1, with QUOTED-PRINTABLE names.
    Text,
    /// The same, but two of five cards have a photo: 4 to 12 KB of BASE64, folded at 75.
    Photos,
    /// Names, addresses and notes in other scripts, with characters of two, three and four bytes in UTF-8.
    NonLatin,
    /// Everything is QUOTED-PRINTABLE, with soft line breaks, and with encoded line breaks in the notes.
    QuotedPrintable,
    /// Long lines, so that nearly every physical line is a fold.
    Folded
};

/// The kinds in order, for programs that iterate over them.
QList<BookKind> AllBookKinds();

/// \return a word of ASCII letters and "-" for a kind, for command lines and tables.
QByteArray NameOf( BookKind a_kind );

/// Generates books. The same seed and the same calls result in the same bytes on every machine.
class BookGenerator
{
public:
    explicit BookGenerator( quint32 a_seed = 20010 );

    /// \return a text with this many cards and CR LF line endings.
    QByteArray Book( BookKind a_kind, int a_cards );

private:
    quint32 Below( quint32 a_bound );
    QByteArray Number( int a_digits );
    template <typename Words>
    QByteArray OneOf( const Words& a_words );
    template <typename Words>
    QByteArray Sentence( const Words& a_words, int a_count );
    QByteArray Address();

    QByteArray Card( BookKind a_kind, int a_index );
    QByteArray TextCard( int a_index );
    QByteArray TextLines30();
    QByteArray TextLines21();
    QByteArray PhotoCard( int a_index );
    QByteArray NonLatinCard();
    QByteArray QuotedPrintableCard();
    QByteArray FoldedCard();
    QByteArray Photo( bool a_is21 );

    std::mt19937 m_random;
};

/// \return one small card of 91 bytes.
QByteArray SmallCard();

} // namespace PimManager::vCard::MadeTexts
