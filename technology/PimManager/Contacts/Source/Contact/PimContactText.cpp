#include <PimManager/Contacts/PimContactText.h>

#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/TextField.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

const TextData& DataOf( const PimContactText& a_text )
{
    return PimContactFieldPrivate::DataOf<TextData>( a_text );
}

TextData& ChangedDataOf( PimContactText& a_text )
{
    return PimContactFieldPrivate::ChangedDataOf<TextData>( a_text );
}

} // namespace

bool TextData::IsSame( const TextData& a_other ) const
{
    return m_text == a_other.m_text && m_kinds == a_other.m_kinds && m_level == a_other.m_level;
}

void TextData::Write( FieldWriter& a_writer ) const
{
    a_writer.AddParameter( "LEVEL", m_level );
    a_writer.SetSingle( m_text );
}

PimContactFieldPrivate* ReadText( FieldReader& a_reader )
{
    const std::string_view text = a_reader.Text();
    if ( text.empty() )
        return nullptr;
    auto* const data = new TextData;
    data->m_text = StringOf( text );
    data->ReadKinds( a_reader );
    if ( !a_reader.Parameters().Values().empty() )
        data->m_level = a_reader.ParameterText( FieldParameter::Level ).toLower();
    return data;
}

PimContactText::PimContactText() :
    PimContactText( TextData::Null() )
{
}

PimContactText::PimContactText( const QString& a_text, PimContactKinds a_kinds ) :
    PimContactText()
{
    TextData& data = ChangedDataOf( *this );
    data.m_text = a_text;
    data.m_kinds = a_kinds;
}

PimContactText::PimContactText( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QString PimContactText::Text() const
{
    return DataOf( *this ).m_text;
}

void PimContactText::SetText( const QString& a_text )
{
    ChangedDataOf( *this ).m_text = a_text;
}

PimContactKinds PimContactText::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

void PimContactText::SetKinds( PimContactKinds a_kinds )
{
    ChangedDataOf( *this ).SetKinds( a_kinds );
}

QString PimContactText::Level() const
{
    return DataOf( *this ).m_level;
}

PimContactList<PimContactText> PimContactText::Alternatives() const
{
    return AlternativesOf( *this );
}

QVariant PimContactText::LevelValue() const
{
    const QString level = Level();
    return level.isEmpty() ? QVariant() : QVariant( level );
}

} // namespace PimManager::Contacts
