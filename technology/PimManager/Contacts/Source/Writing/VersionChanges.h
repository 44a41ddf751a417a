/// \file
/// Converts the properties of a card to those of another version.

#pragma once

#include "Contact/ContactLines.h"
#include "Contact/DateFields.h"
#include "Contact/FreeGroups.h"
#include "Writing/Property.h"
#include "Writing/WriteNotes.h"

#include <QByteArray>
#include <QHash>

#include <optional>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Changes the properties of cards, one card after the other, so that a version can express them (see VersionTable).
/// Everything that the version does not have is noted.
class VersionChanges
{
public:
    /// \param a_sink receives the changed properties. Both arguments must outlive the object.
    VersionChanges( PimContactVersion a_target, PropertySink& a_sink, WriteNotes& a_notes ) :
        m_target( a_target ),
        m_sink( a_sink ),
        m_notes( a_notes )
    {
    }

    /// \param a_card       must exist as long as its properties are passed.
    /// \param a_properties the properties that it has.
    void BeginCard( const PimContactCard& a_card, const PropertySet& a_properties );

    /// Changes a property and passes it to the sink, with further properties that it becomes.
    /// \param a_property the property. It is changed, and needs to be valid only during the call.
    void Take( Property& a_property );

private:
    bool Is40() const { return m_target == PimContactVersion::V40; }
    bool IsOtherVersion() const { return m_source != m_target; }
    std::string_view Keep( const QByteArray& a_text );
    static bool RemoveAll( Property& a_property, StandardParameter a_parameter );
    void Note( PimContactWriteCode a_code, std::string_view a_detail = {} );

    void FindSortName();
    void FindLabels();
    void FindAgents();
    QByteArray FreeGroup();

    void ChangeParameters( Property& a_property );
    bool KeepsParameter( Property& a_property, ParameterText& a_parameter );
    bool KeepsPreference( ParameterText& a_parameter );
    void ChangeName( Property& a_property );
    void ChangeValue( Property& a_property );
    void ChangeType( Property& a_property ) const;
    void ChangeComponents( Property& a_property );
    void TrimName( Property& a_property ) const;
    void TrimAddress( Property& a_property ) const;
    void SetDate( Property& a_property, const DateFields& a_fields );
    void ChangeDate( Property& a_property );
    void ChangeTimestamp( Property& a_property );
    void ChangePosition( Property& a_property );
    void ChangeOffset( Property& a_property );
    void ChangeNumber( Property& a_property );
    void ChangeMail( Property& a_property );
    void ChangeMedia( Property& a_property );
    void ChangeMessenger( Property& a_property );
    void ChangeProfile( Property& a_property ) const;
    void ChangeRelation( Property& a_property );
    void ChangeAgent( Property& a_property );
    bool ChangeSortString( Property& a_property );
    bool ChangeLabel( Property& a_property );
    void TakeOut( Property& a_address );
    void Emit( Property& a_property );
    void EmitParts( const Property& a_address );
    void EmitPart( std::string_view a_name, PropertyId a_id, std::string_view a_text, const Property& a_address );

    PimContactVersion m_target;
    PimContactVersion m_source = PimContactVersion::V30;
    PropertySink& m_sink;
    WriteNotes& m_notes;
    PimContactCard m_card;
    // Texts that were created for the property.
    std::vector<QByteArray> m_texts;
    std::string_view m_oldName;
    Property m_part;

    // For an address: the parts that become lines of its group.
    std::string_view m_label;
    std::string_view m_position;
    std::string_view m_timeZone;
    std::string_view m_country;
    // For a name.
    QByteArray m_sortAs;
    // The property has PREF or receives it.
    bool m_hasPref = false;
    // PREF=1 was removed.
    bool m_addsPref = false;

    // For the card: the line that receives SORT-STRING as a parameter, and the text of SORT-STRING.
    int m_sortLine = 0;
    QByteArray m_sortText;
    bool m_hasSortString = false;
    // The text that the address in a line receives as a parameter, and the lines that it comes from.
    QHash<int, QByteArray> m_labels;
    QHash<int, bool> m_labelLines;
    // The names of the contacts in lines that contain a card, once they are needed.
    QHash<int, QByteArray> m_agents;
    bool m_hasAgents = false;
    // Created when the first new group is needed.
    std::optional<FreeGroups> m_groups;
};

} // namespace PimManager::Contacts
