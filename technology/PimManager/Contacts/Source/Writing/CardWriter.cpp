#include "Writing/CardWriter.h"

#include "Lines/KnownNames.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContact.h>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactWriteCode;
using LineView = PimContactCardPrivate::LineView;

constexpr std::string_view s_kLineEnd = "\r\n";

} // namespace

void CardWriter::Write( const PimContactCard& a_card )
{
    m_notes.BeginContact();
    m_depth = 0;
    const bool isCopying = m_text != nullptr && KnownVersion( a_card.Version() ) == m_target;
    m_survey.Read( a_card, m_target, isCopying );
    if ( a_card.IsFiltered() )
        m_notes.Add( Code::CardFiltered );
    if ( m_survey.IsCopy() )
        m_text->TakeWritten( PimContactCardPrivate::BytesOf( a_card ) );
    else
        WriteParts( a_card );
}

void CardWriter::WriteNested( const PimContactCard& a_card, int a_depth )
{
    m_depth = a_depth;
    m_survey.Read( a_card, m_target, false );
    WriteParts( a_card );
}

void CardWriter::WriteParts( const PimContactCard& a_card )
{
    m_lines.reset();
    if ( m_plain )
        m_plain->BeginCard( m_survey.Record(), m_survey.Step(), m_survey.Properties() );
    WriteStart( a_card );
    int number = 0;
    for ( const SurveyedPart& part : m_survey.Parts() )
    {
        if ( !part.m_isDropped )
        {
            WriteLine( a_card, part, ++number );
            continue;
        }
        m_notes.SetLine( m_depth > 0 ? m_notes.Line() : 0 );
        m_notes.Add( Code::LineDropped );
    }
    EndRun();
    m_sink.EndCard();
}

// VERSION keeps its position, but in 4.0 it follows BEGIN.
void CardWriter::WriteStart( const PimContactCard& a_card )
{
    m_sink.BeginCard();
    m_isVersionWritten = m_target == PimContactVersion::V40;
    m_isVersionLineFound = false;
    if ( !m_survey.HasVersion() || m_survey.IsVersionFirst() )
        WriteVersion();
    AddNames( a_card );
}

void CardWriter::WriteVersion()
{
    EndRun();
    if ( !m_isVersionWritten )
        m_sink.TakeVersion();
    m_isVersionWritten = true;
}

// A card has one version.
void CardWriter::TakeVersionLine( int a_number )
{
    WriteVersion();
    if ( m_isVersionLineFound )
    {
        m_notes.SetLine( m_depth > 0 ? m_notes.Line() : a_number );
        m_notes.Add( Code::PropertyDropped, "VERSION" );
    }
    m_isVersionLineFound = true;
}

// An added N is empty, because nothing is guessed.
void CardWriter::AddNames( const PimContactCard& a_card )
{
    if ( m_survey.HasNames() )
        return;
    const int line = m_notes.Line();
    if ( m_depth == 0 )
        m_notes.SetLine( 0 );
    if ( m_target != PimContactVersion::V40 && !m_survey.Has( PropertyId::N ) )
        AddName( "N", PropertyId::N, QByteArray() );
    if ( m_target != PimContactVersion::V21 && !m_survey.Has( PropertyId::Fn ) )
        AddName( "FN", PropertyId::Fn, PimContact( a_card ).DisplayName().toUtf8() );
    m_notes.SetLine( line );
}

void CardWriter::AddName( std::string_view a_name, PropertyId a_property, const QByteArray& a_text )
{
    Property name;
    name.m_name = a_name;
    name.m_property = a_property;
    name.SetText( ViewOf( a_text ) );
    if ( a_property == PropertyId::N )
    {
        name.m_shape = ValueShape::ComponentLists;
        name.m_texts.push_back( { std::string_view(), 4 } );
    }
    m_sink.Take( name );
    m_notes.Add( Code::NameAdded, a_name );
}

// Steps to a line that is written from its decoded value.
void CardWriter::OpenLine( const PimContactCard& a_card, const SurveyedPart& a_part )
{
    EndRun();
    if ( !m_lines )
    {
        m_lines.emplace( a_card );
        m_changes.BeginCard( a_card, m_survey.Properties() );
    }
    m_lines->StepTo( a_part.m_place );
    m_lines->NextPart();
}

void CardWriter::WriteLine( const PimContactCard& a_card, const SurveyedPart& a_part, int a_number )
{
    if ( a_part.m_property == PropertyId::Version )
        return TakeVersionLine( a_number );
    if ( a_part.m_cleanness == Cleanness::Full || a_part.m_cleanness == Cleanness::Long )
        return CopyLine( a_part );
    if ( !MayBePlain( a_part ) )
        return ChangeLine( a_card, a_part, a_number );
    if ( ChangePlain( a_part ) )
        return;
    const qint64 notes = m_notes.Count();
    ChangeLine( a_card, a_part, a_number );
    if ( m_notes.Count() == notes )
        LearnHead( a_part );
}

bool CardWriter::MayBePlain( const SurveyedPart& a_part ) const
{
    return m_plain && m_depth == 0 && a_part.m_isPlain && m_plain->MayTake( a_part.m_property );
}

bool CardWriter::ChangePlain( const SurveyedPart& a_part )
{
    const std::string_view bytes = m_survey.BytesOf( a_part );
    const IndexReader::PlainLine line = m_survey.PlainLineOf( a_part );
    const HeadMeaning& meaning = m_survey.MeaningOf( bytes, line );
    return meaning.m_rule.m_isAllowed && meaning.m_written.IsKnown() && m_plain->Take( bytes, line, meaning );
}

// No note was added, so the head is that of all lines like this one.
void CardWriter::LearnHead( const SurveyedPart& a_part )
{
    HeadMeaning& meaning = m_survey.MeaningOf( m_survey.BytesOf( a_part ), m_survey.PlainLineOf( a_part ) );
    if ( meaning.m_rule.m_isAllowed && m_text->Head().find( ";VALUE=" ) == std::string_view::npos )
        meaning.m_written.Set( m_text->Head() );
}

void CardWriter::ChangeLine( const PimContactCard& a_card, const SurveyedPart& a_part, int a_number )
{
    OpenLine( a_card, a_part );
    m_sink.ForgetLosses();
    if ( m_depth == 0 )
        m_notes.SetLine( a_number );
    Property& property = m_reader.Read( m_lines->Line(), a_part.m_property, a_number );
    // Changes of the property do not change the text of its name.
    const std::string_view name = property.m_name;
    if ( m_reader.IsNameMended() )
        m_notes.Add( Code::PropertyRenamed, name, name );
    if ( m_reader.IsDamaged() )
        m_notes.Add( Code::ValueChanged, name );
    if ( !m_reader.EmptyParameter().empty() )
        m_notes.Add( Code::ParameterDropped, name, m_reader.EmptyParameter() );
    CardView nested;
    if ( m_lines->FindNested( nested ) )
    {
        property.m_nested = LineView::CardAt( a_card, nested );
        property.m_type = ValueType::VCard;
    }
    if ( !property.m_nested.IsNull() && m_target != PimContactVersion::V40 )
        WriteNestedLine( property );
    else
        m_changes.Take( property );
    NoteLosses( name );
}

// Lines that follow each other are copied in one piece.
void CardWriter::CopyLine( const SurveyedPart& a_part )
{
    const std::string_view bytes = m_survey.BytesOf( a_part );
    if ( a_part.m_cleanness == Cleanness::Long )
    {
        EndRun();
        m_text->TakeLong( WithoutLineEnd( bytes ) );
        return;
    }
    if ( m_run.data() + m_run.size() != bytes.data() )
        EndRun();
    const char* const begin = m_run.empty() ? bytes.data() : m_run.data();
    m_run = std::string_view( begin, m_run.size() + bytes.size() );
    if ( !a_part.m_isBase64 || m_target != PimContactVersion::V21 )
        return;
    EndRun();
    m_text->TakeWritten( s_kLineEnd );
}

void CardWriter::EndRun()
{
    if ( !m_run.empty() )
        m_text->TakeWritten( m_run );
    m_run = std::string_view();
}

// Version 2.1 has the lines of the card; 3.0 has it as a text (RFC 2426, section 3.5.4), whose escapes double in each
// card around it.
void CardWriter::WriteNestedLine( Property& a_property )
{
    constexpr int s_kMostInText = 2;
    if ( m_target == PimContactVersion::V21 )
    {
        m_text->TakeHolder( a_property );
        CardWriter( *m_text, m_notes ).WriteNested( a_property.m_nested, m_depth + 1 );
        return;
    }
    if ( m_depth >= s_kMostInText )
    {
        m_notes.Add( Code::PropertyDropped, a_property.m_name );
        return;
    }
    QByteArray bytes;
    VCardText text( m_target, bytes );
    text.SetUnfolded();
    CardWriter( text, m_notes ).WriteNested( a_property.m_nested, m_depth + 1 );
    a_property.m_nested = PimContactCard();
    a_property.SetText( ViewOf( bytes ) );
    m_text->Take( a_property );
}

void CardWriter::NoteLosses( std::string_view a_name )
{
    if ( m_sink.IsTextLost() )
        m_notes.Add( Code::ValueChanged, a_name );
    if ( !m_sink.LostParameter().empty() )
        m_notes.Add( Code::ParameterDropped, a_name, m_sink.LostParameter() );
}

} // namespace PimManager::Contacts
