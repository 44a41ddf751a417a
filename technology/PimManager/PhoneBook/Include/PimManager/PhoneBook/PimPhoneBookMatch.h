/// \file
/// What a search in a phone book finds.
///
/// \code
/// for ( const PimPhoneBookMatch& match : phoneBook.Find( QStringLiteral( "mul" ) ) )
///     qInfo() << phoneBook.At( match.m_contact ).DisplayName();
/// \endcode

#pragma once

#include <PimManager/PhoneBook/PimPhoneBookExport.h>

#include <QString>
#include <QtGlobal>

namespace PimManager::PhoneBook
{

/// How certain it is that two telephone numbers are the same.
enum class PimPhoneBookGrade
{
    /// They differ.
    None,
    /// Their last digits are equal.
    Ending,
    /// They are equal after the trunk prefix and the region of the user are taken into account.
    National,
    /// They are equal in international form.
    Exact
};

/// A contact that may be the caller.
struct PimPhoneBookCaller
{
    /// The index of the contact in the book.
    int m_contact;
    /// The id of the TEL line, see PimContact::Line().
    int m_line;
    /// How certain it is that the number is the same. Never None.
    PimPhoneBookGrade m_grade;
};

/// The best place at which a contact contains the text that was searched for.
enum class PimPhoneBookPlace
{
    /// Each word is a whole word of the name or nickname.
    WholeName,
    /// Each word begins a word of the name or nickname.
    Name,
    /// Each word is a whole word of the name, nickname or organisation.
    WholeOrganisation,
    /// Each word begins a word of the name, nickname or organisation.
    Organisation,
    /// At least one word is a part of a number.
    Number
};

/// A contact that contains a text.
struct PimPhoneBookMatch
{
    /// The index of the contact in the book.
    int m_contact;
    /// The best place.
    PimPhoneBookPlace m_place;
};

} // namespace PimManager::PhoneBook

Q_DECLARE_TYPEINFO( PimManager::PhoneBook::PimPhoneBookCaller, Q_PRIMITIVE_TYPE );
Q_DECLARE_TYPEINFO( PimManager::PhoneBook::PimPhoneBookMatch, Q_PRIMITIVE_TYPE );
