#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include "Numbers/CallingCodes.h"

#include <QSharedData>

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

constexpr int s_kEndingDigits = 7;
constexpr int s_kLeastEndingDigits = 3;

} // namespace

class PimPhoneBookOptionsPrivate : public QSharedData
{
public:
    QString m_region;
    QLocale m_locale;
    int m_endingDigits = s_kEndingDigits;
    PimPhoneBookSorting m_sorting = PimPhoneBookSorting::FamilyName;
};

PimPhoneBookOptions::PimPhoneBookOptions() :
    d( new PimPhoneBookOptionsPrivate )
{
}

PimPhoneBookOptions::PimPhoneBookOptions( const PimPhoneBookOptions& a_other ) = default;
PimPhoneBookOptions& PimPhoneBookOptions::operator=( const PimPhoneBookOptions& a_other ) = default;
PimPhoneBookOptions::~PimPhoneBookOptions() = default;

QString PimPhoneBookOptions::Region() const
{
    return d->m_region;
}

void PimPhoneBookOptions::SetRegion( const QString& a_region )
{
    const QString region = a_region.toUpper();
    d->m_region = HomeOf( region ).m_code != nullptr ? region : QString();
}

int PimPhoneBookOptions::EndingDigits() const
{
    return d->m_endingDigits;
}

void PimPhoneBookOptions::SetEndingDigits( int a_digits )
{
    d->m_endingDigits = std::max( a_digits, s_kLeastEndingDigits );
}

QLocale PimPhoneBookOptions::Locale() const
{
    return d->m_locale;
}

void PimPhoneBookOptions::SetLocale( const QLocale& a_locale )
{
    d->m_locale = a_locale;
}

PimPhoneBookSorting PimPhoneBookOptions::Sorting() const
{
    return d->m_sorting;
}

void PimPhoneBookOptions::SetSorting( PimPhoneBookSorting a_sorting )
{
    d->m_sorting = a_sorting;
}

} // namespace PimManager::PhoneBook
