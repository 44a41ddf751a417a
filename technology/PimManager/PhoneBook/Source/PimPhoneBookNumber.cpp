#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include "Numbers/DialledNumber.h"

#include <QSharedData>

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

constexpr int s_kLeastEndingDigits = 3;

size_t EndingSize( int a_digits )
{
    return static_cast<size_t>( std::max( a_digits, s_kLeastEndingDigits ) );
}

QString TextOf( std::string_view a_digits )
{
    return QString::fromLatin1( a_digits.data(), static_cast<int>( a_digits.size() ) );
}

} // namespace

class PimPhoneBookNumberPrivate : public QSharedData
{
public:
    PimPhoneBookNumberPrivate() = default;
    PimPhoneBookNumberPrivate( const WrittenNumber& a_number, const QString& a_region ) :
        m_written( a_number ),
        m_dialled( a_number, HomeOf( a_region ) )
    {
    }

    WrittenNumber m_written;
    DialledNumber m_dialled{ {}, WrittenNumber::Plain, Home() };
};

PimPhoneBookNumber::PimPhoneBookNumber()
{
    static const QSharedDataPointer<PimPhoneBookNumberPrivate> s_kNull( new PimPhoneBookNumberPrivate );
    d = s_kNull;
}

PimPhoneBookNumber::PimPhoneBookNumber( const PimPhoneBookNumber& a_other ) = default;
PimPhoneBookNumber::PimPhoneBookNumber( PimPhoneBookNumber&& a_other ) noexcept = default;
PimPhoneBookNumber& PimPhoneBookNumber::operator=( const PimPhoneBookNumber& a_other ) = default;
PimPhoneBookNumber& PimPhoneBookNumber::operator=( PimPhoneBookNumber&& a_other ) noexcept = default;
PimPhoneBookNumber::~PimPhoneBookNumber() = default;

PimPhoneBookNumber::PimPhoneBookNumber( PimPhoneBookNumberPrivate* a_private ) :
    d( a_private )
{
}

PimPhoneBookNumber PimPhoneBookNumber::FromText( const QString& a_text, const QString& a_region )
{
    return PimPhoneBookNumber( new PimPhoneBookNumberPrivate( ReadWrittenNumber( a_text ), a_region ) );
}

PimPhoneBookNumber PimPhoneBookNumber::FromPhone( const Contacts::PimContactPhone& a_phone, const QString& a_region )
{
    return PimPhoneBookNumber( new PimPhoneBookNumberPrivate( ReadWrittenNumber( a_phone ), a_region ) );
}

bool PimPhoneBookNumber::IsNull() const
{
    return d->m_written.m_digits.IsEmpty();
}

QString PimPhoneBookNumber::International() const
{
    const DialledNumber& number = d->m_dialled;
    if ( number.m_codeSize == 0 || number.m_country == DialledNumber::Country::Likely )
        return QString();
    return QLatin1Char( '+' ) + TextOf( number.Digits() );
}

QString PimPhoneBookNumber::National() const
{
    return d->m_dialled.m_country == DialledNumber::Country::Likely ? Digits()
                                                                    : TextOf( d->m_dialled.NationalDigits() );
}

QString PimPhoneBookNumber::Digits() const
{
    return TextOf( d->m_written.Digits() );
}

QString PimPhoneBookNumber::Extension() const
{
    return TextOf( d->m_written.m_extension.View() );
}

PimPhoneBookGrade PimPhoneBookNumber::Compare( const PimPhoneBookNumber& a_other, int a_endingDigits ) const
{
    return GradeWithExtensions( GradeOf( d->m_dialled, a_other.d->m_dialled, EndingSize( a_endingDigits ) ),
                                d->m_written.m_extension.View(), a_other.d->m_written.m_extension.View() );
}

uint PimPhoneBookNumber::EndingHash( int a_endingDigits ) const
{
    return HashOf( d->m_dialled.Ending( EndingSize( a_endingDigits ) ) );
}

bool PimPhoneBookNumber::operator==( const PimPhoneBookNumber& a_other ) const
{
    return d->m_dialled.m_country == a_other.d->m_dialled.m_country &&
           d->m_dialled.m_codeSize == a_other.d->m_dialled.m_codeSize &&
           d->m_dialled.Digits() == a_other.d->m_dialled.Digits() &&
           d->m_written.m_extension.View() == a_other.d->m_written.m_extension.View();
}

} // namespace PimManager::PhoneBook
