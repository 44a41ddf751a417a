/// \file
/// The report of a writer on everything that it could not write as it was found.
///
/// \code
/// for ( const PimContactWriteNote& note : writer.Report().Notes() )
///     qInfo().noquote() << note.Contact() << note.Line() << note.Text();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QLatin1String>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactWriteNotePrivate;
class PimContactWriteReportPrivate;

/// What happened to a part of a contact. The tables in docs/vcard-support.md list the cases.
enum class PimContactWriteCode
{
    NameAdded,        ///< the format requires an FN or N that the card does not have: one was added
    PropertyRenamed,  ///< the format has no such property: it was written under another name
    PropertyDropped,  ///< a property was left out
    ParameterDropped, ///< a parameter, or a part of it, was left out
    ValueChanged,     ///< a part of the value was left out or changed
    LineDropped,      ///< a part of the card that is not a property was left out, such as text between its lines
    CardFiltered,     ///< the card was read through a filter, so only a part of it was written
};

/// The number of codes. Their values run from 0 to this number - 1.
constexpr int s_kPimContactWriteCodes = static_cast<int>( PimContactWriteCode::CardFiltered ) + 1;

/// One event while writing. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactWriteNote
{
public:
    /// Creates a note with code NameAdded and no position.
    PimContactWriteNote();
    PimContactWriteNote( const PimContactWriteNote& a_other );
    PimContactWriteNote& operator=( const PimContactWriteNote& a_other );
    ~PimContactWriteNote();

    /// What happened.
    PimContactWriteCode Code() const;

    /// The number of the contact in the order of writing, from 1.
    qint64 Contact() const;

    /// The number of the line among the properties of its card, from 1. It is the id of the line in PimContact. 0 if
    /// the note is about the whole card. For a note about a nested card, the line that contains the card.
    int Line() const;

    /// The name of the property as it was found, such as `KIND`. For NameAdded, the name that was added. Empty if the
    /// note is about the whole card. It contains only letters, digits and hyphens.
    QString Property() const;

    /// \return the new name for PropertyRenamed, the name of the parameter for ParameterDropped, and otherwise an empty
    ///         text. It contains only letters, digits and hyphens.
    QString Detail() const;

    /// \return an English sentence without a full stop, such as `KIND was written as X-KIND`. It contains names of
    /// properties and parameters, but no values.
    QString Text() const;

    bool operator==( const PimContactWriteNote& a_other ) const;
    bool operator!=( const PimContactWriteNote& a_other ) const { return !( *this == a_other ); }

private:
    friend class PimContactWriteNotePrivate; // creates notes
    QSharedDataPointer<PimContactWriteNotePrivate> d;
};

/// All notes of a writer, with their counts. Implicitly shared: a report does not change after it was returned.
class PIMCONTACT_EXPORT PimContactWriteReport
{
public:
    /// Creates an empty report.
    PimContactWriteReport();
    PimContactWriteReport( const PimContactWriteReport& a_other );
    PimContactWriteReport& operator=( const PimContactWriteReport& a_other );
    ~PimContactWriteReport();

    /// The number of contacts that were written.
    qint64 Contacts() const;

    /// The notes in the order of the contacts. At most PimContactWriter::MostNotes() of them are kept.
    QList<PimContactWriteNote> Notes() const;

    /// The number of notes with a code, kept or not.
    qint64 Count( PimContactWriteCode a_code ) const;

    /// The text of the device's error. Empty if there was none. Contacts after the error are missing.
    QString ErrorText() const;

    /// \return true if everything was written: the device did not fail, and there are no notes except NameAdded and
    ///         PropertyRenamed.
    bool IsComplete() const;

    /// \return an English sentence for people, such as `12 contacts; 3 properties renamed; 1 value changed`.
    QString Summary() const;

private:
    friend class PimContactWriteReportPrivate; // fills reports
    QSharedDataPointer<PimContactWriteReportPrivate> d;
};

/// \return a word in ASCII, such as `property-renamed`. It never changes, so programs can rely on it.
PIMCONTACT_EXPORT QLatin1String NameOf( PimContactWriteCode a_code );

} // namespace PimManager::Contacts
