/// \file
/// The words of a text without case and accents.

#pragma once

#include "Search/LetterFolding.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace PimManager::PhoneBook
{

/// The words of texts, folded as LetterFolding says, in UTF-8 and in one block of memory.
///
/// A run of letters, digits and marks is a word. Words with no white space, comma or semicolon between them, such as
/// `Jean-Luc` and `O'Neil`, are a chain: one word as well. In scripts without blanks between words, such as Chinese and
/// Japanese, each character may begin a word, and blanks do not end a chain.
class FoldedText
{
public:
    /// The beginning of a word in a chain. It is in both spellings.
    struct Start
    {
        quint32 m_plain;
        quint32 m_spelled;
        /// False for a character of a script without blanks, and for a digit after a letter and the reverse. There the
        /// word before does not end.
        bool m_isWord;
    };

    /// Words without white space between them. The positions are in the block of memory.
    struct Chain
    {
        quint32 m_firstStart;
        quint32 m_starts;
        quint32 m_plainEnd;
        /// The same as m_plainEnd if there is no other spelling.
        quint32 m_spelledEnd;
        /// True for `+49`.
        bool m_isAfterPlus;
        bool HasSpelling() const { return m_spelledEnd != m_plainEnd; }
    };

    /// Removes all words. The memory is kept.
    void Clear();

    /// Adds the words of a text. They are in no chain with those before. Linear in the length of the text.
    void Append( const QString& a_text );

    const std::vector<Chain>& Chains() const { return m_chains; }
    const Start& StartAt( const Chain& a_chain, quint32 a_index ) const
    {
        return m_starts[a_chain.m_firstStart + a_index];
    }

    /// \return the end of the word that begins at a start that is a word.
    Start EndOf( const Chain& a_chain, quint32 a_index ) const;

    std::string_view Text( quint32 a_begin, quint32 a_end ) const
    {
        return std::string_view( m_text ).substr( a_begin, a_end - a_begin );
    }

private:
    // Each returns the place after what it has read.
    const QChar* AddAsciiLetters( const QChar* a_place, const QChar* a_end );
    const QChar* AddOther( const QChar* a_place, const QChar* a_end );
    void AddOtherAscii( char a_character );
    void AddOther( char32_t a_character );
    /// \param a_plain letters of one kind, each with the same spelling, or one letter.
    void AddLetters( std::string_view a_plain, std::string_view a_spelled, LetterKind a_kind );
    void AddMark( char32_t a_mark );
    void BeginSpelling();
    void BeginWord( LetterKind a_kind );
    void EndChain();

    LetterFolding m_letters;
    std::string m_text;
    std::string m_spelled; // of the current chain; empty while it is the same
    std::vector<Start> m_starts;
    std::vector<Chain> m_chains;
    quint32 m_begin = 0; // of the current chain
    quint32 m_firstStart = 0;
    LetterKind m_last = LetterKind::Space; // of the last letter
    bool m_isInChain = false;
    bool m_isAfterSpace = false;
    bool m_isAfterJoint = false;
    bool m_hasSpelling = false;
    bool m_isAfterPlus = false;
    bool m_isPlus = false; // whether the last character was one
};

} // namespace PimManager::PhoneBook
