#include <PimManager/Contacts/PimContactGender.h>

#include "Contact/FieldData.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <QVector>

namespace PimManager::Contacts
{

namespace
{

using Sex = PimContactGender::Sex;

class GenderData : public FieldData<GenderData>
{
public:
    bool IsSame( const GenderData& a_other ) const { return m_sex == a_other.m_sex && m_text == a_other.m_text; }
    bool IsEmpty() const override { return m_sex == Sex::Open && m_text.isEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return "GENDER"; }
    void Write( FieldWriter& a_writer ) const override;

    Sex m_sex = Sex::Open;
    QString m_text;
};

const GenderData& DataOf( const PimContactGender& a_gender )
{
    return PimContactFieldPrivate::DataOf<GenderData>( a_gender );
}

// RFC 6350, section 6.2.7.
Sex SexOfLetter( std::string_view a_letter )
{
    switch ( a_letter.size() == 1 ? Upper( a_letter[0] ) : '\0' )
    {
    case 'M':
        return Sex::Male;
    case 'F':
        return Sex::Female;
    case 'O':
        return Sex::Other;
    case 'N':
        return Sex::NotApplicable;
    case 'U':
        return Sex::Unknown;
    default:
        return Sex::Open;
    }
}

QString LetterOf( Sex a_sex )
{
    const QString letters = QStringLiteral( " MFONU" );
    return a_sex == Sex::Open ? QString() : QString( letters.at( static_cast<int>( a_sex ) ) );
}

void GenderData::Write( FieldWriter& a_writer ) const
{
    QVector<QStringList> components = { QStringList( LetterOf( m_sex ) ) };
    if ( !m_text.isEmpty() )
        components.append( QStringList( m_text ) );
    a_writer.SetComponents( components );
}

} // namespace

// Cards of other versions than 4.0 may have it too. A word instead of the letter is the text.
PimContactFieldPrivate* ReadGender( FieldReader& a_reader )
{
    PartReader parts = a_reader.Parts( Delimiters::Semicolons );
    parts.Next();
    const Sex sex = SexOfLetter( WithoutOuterSpace( parts.Text() ) );
    QString text = sex == Sex::Open ? StringOf( WithoutOuterSpace( parts.Text() ) ) : QString();
    if ( text.isEmpty() && parts.Next() )
        text = StringOf( WithoutOuterSpace( parts.Text() ) );
    if ( sex == Sex::Open && text.isEmpty() )
        return nullptr;
    auto* const data = new GenderData;
    data->m_sex = sex;
    data->m_text = text;
    a_reader.ReadParameters( NoKinds );
    return data;
}

PimContactGender::PimContactGender() :
    PimContactGender( GenderData::Null() )
{
}

PimContactGender::PimContactGender( Sex a_sex, const QString& a_text ) :
    PimContactGender()
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<GenderData>( *this );
    data.m_sex = a_sex;
    data.m_text = a_text;
}

PimContactGender::PimContactGender( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

PimContactGender::Sex PimContactGender::SexOf() const
{
    return DataOf( *this ).m_sex;
}

QString PimContactGender::Text() const
{
    return DataOf( *this ).m_text;
}

} // namespace PimManager::Contacts
