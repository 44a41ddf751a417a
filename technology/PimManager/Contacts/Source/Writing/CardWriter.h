/// \file
/// Writes cards.

#pragma once

#include "Writing/CardSurvey.h"
#include "Writing/PlainChange.h"
#include "Writing/PropertyReader.h"
#include "Writing/VCardText.h"
#include "Writing/VersionChanges.h"
#include "Writing/WriteNotes.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// Writes cards in one version, one after the other. Lines that are clean and already have this version are copied.
class CardWriter
{
public:
    /// Writes vCards. The arguments must outlive the object.
    CardWriter( VCardText& a_text, WriteNotes& a_notes ) :
        m_target( a_text.Version() ),
        m_sink( a_text ),
        m_text( &a_text ),
        m_notes( a_notes ),
        m_changes( m_target, a_text, a_notes ),
        m_plain( std::in_place, a_text )
    {
    }

    /// Passes the properties in version 4.0 to another sink.
    CardWriter( PropertySink& a_sink, WriteNotes& a_notes ) :
        m_target( PimContactVersion::V40 ),
        m_sink( a_sink ),
        m_notes( a_notes ),
        m_changes( m_target, a_sink, a_notes )
    {
    }

    /// \param a_card not null.
    void Write( const PimContactCard& a_card );

    /// Writes every line from its decoded value. \param a_depth the number of cards around the card.
    void WriteNested( const PimContactCard& a_card, int a_depth );

private:
    void WriteParts( const PimContactCard& a_card );
    void WriteStart( const PimContactCard& a_card );
    void AddNames( const PimContactCard& a_card );
    void AddName( std::string_view a_name, PropertyId a_property, const QByteArray& a_text );
    void WriteLine( const PimContactCard& a_card, const SurveyedPart& a_part, int a_number );
    bool MayBePlain( const SurveyedPart& a_part ) const;
    bool ChangePlain( const SurveyedPart& a_part );
    void LearnHead( const SurveyedPart& a_part );
    void ChangeLine( const PimContactCard& a_card, const SurveyedPart& a_part, int a_number );
    void OpenLine( const PimContactCard& a_card, const SurveyedPart& a_part );
    void CopyLine( const SurveyedPart& a_part );
    void EndRun();
    void WriteVersion();
    void TakeVersionLine( int a_number );
    void WriteNestedLine( Property& a_property );
    void NoteLosses( std::string_view a_name );

    PimContactVersion m_target;
    PropertySink& m_sink;
    VCardText* m_text = nullptr;
    WriteNotes& m_notes;
    VersionChanges m_changes;
    // For vCards that are written in another version.
    std::optional<PlainChange> m_plain;
    PropertyReader m_reader;
    CardSurvey m_survey;
    // For the card, once a line is written from its decoded value.
    std::optional<LineCursor> m_lines;
    // Lines to copy.
    std::string_view m_run;
    // For the property as it was found.
    bool m_isVersionWritten = false;
    bool m_isVersionLineFound = false;
    int m_depth = 0;
};

} // namespace PimManager::Contacts
