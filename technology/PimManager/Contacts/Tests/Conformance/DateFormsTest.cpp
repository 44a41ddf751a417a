#include "Conformance/DateForms.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    ValueType m_type;
    PimContactVersion m_version;
    std::vector<const char*> m_valid;
    std::vector<const char*> m_invalid;
};

// The valid texts of 4.0 are the examples of RFC 6350, section 4.3.
const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows = {
        { ValueType::Date,
          PimContactVersion::V40,
          { "19850412", "1985-04", "1985", "--0412", "--04", "---12" },
          { "", "1985-04-12", "198504", "85", "850412", "19851312", "19850432", "19850012", "19850400", "--0431",
            "---32", "--04-12", "-0412", "19850412 ", "19850412T10", "1985041" } },
        { ValueType::Time,
          PimContactVersion::V40,
          { "102200", "1022", "10", "-2200", "--00", "102200Z", "102200-0800", "102200-08", "1022+0100" },
          { "", "10:22:00", "T102200", "242200", "106000", "102261", "102200.5", "102200z1", "-2200-",
            "102200-08:00" } },
        { ValueType::DateTime,
          PimContactVersion::V40,
          { "19961022T140000", "--1022T1400", "---22T14", "19961022T140000Z" },
          { "19961022", "T140000", "1996-10T14", "19961022T-1400", "19961022T", "19961022 140000" } },
        { ValueType::Timestamp,
          PimContactVersion::V40,
          { "19961022T140000", "19961022T140000Z", "19961022T140000-05", "19961022T140000-0500" },
          { "19961022T1400", "--1022T140000", "19961022", "1996-10-22T14:00:00" } },
        { ValueType::DateAndOrTime,
          PimContactVersion::V40,
          { "19961022T140000", "--1022T1400", "---22T14", "19850412", "1985-04", "1985", "--0412", "---12", "T102200",
            "T1022", "T10", "T-2200", "T--00", "T102200Z", "T102200-0800" },
          { "", "102200", "1985-04-12", "T", "circa 1800" } },
        { ValueType::Date,
          PimContactVersion::V30,
          { "1985-04-12", "19850412", "1985-0412" },
          { "", "1985-04", "--0412", "1985-04-31", "1985-00-12", "1985-04-12T10:00:00", "85-04-12" } },
        { ValueType::Time,
          PimContactVersion::V30,
          { "10:22:00", "102200", "10:22:00.33", "10:22:00Z", "10:22:00-08:00", "10:22:00-0800" },
          { "", "10:22", "T10:22:00", "25:00:00", "10:22:00-08" } },
        { ValueType::DateTime,
          PimContactVersion::V30,
          { "1996-10-22T14:00:00Z", "1996-08-11T12:34:56Z", "19960811T123456Z", "1996-10-22T14:00:00-05:00",
            "1996-10-22T14:00:00,5" },
          { "1996-10-22", "14:00:00", "1996-10-22T14:00", "1996-10-22 14:00:00" } },
        { ValueType::Date, PimContactVersion::V21, { "1985-04-12", "19850412" }, { "1985", "--0412" } },
        { ValueType::DateTime,
          PimContactVersion::V21,
          { "19850412T102200Z", "1985-04-12T10:22:00-05:00" },
          { "1985-04-12", "T102200" } },
    };
    return rows;
}

std::string TextOf( const Row& a_row, const char* a_text )
{
    return std::string( NameOf( a_row.m_type ) ) + " of version " +
           std::to_string( static_cast<int>( a_row.m_version ) ) + ": " + a_text;
}

} // namespace

TEST( DateFormsTest, DatesHaveTheFormOfTheirTypeAndVersion )
{
    for ( const Row& row : Rows() )
    {
        for ( const char* const text : row.m_valid )
            EXPECT_TRUE( IsDateOfType( text, row.m_type, row.m_version ) ) << TextOf( row, text );
        for ( const char* const text : row.m_invalid )
            EXPECT_FALSE( IsDateOfType( text, row.m_type, row.m_version ) ) << TextOf( row, text );
    }
}

TEST( DateFormsTest, OffsetsHaveTheFormOfTheirVersion )
{
    struct OffsetRow
    {
        const char* m_text;
        bool m_is21;
        bool m_is30;
        bool m_is40;
    };
    const std::vector<OffsetRow> rows = {
        { "-0500", true, false, true },    { "-05", true, false, true },     { "-05:00", true, true, false },
        { "+12:45", true, true, false },   { "05:00", false, false, false }, { "Z", false, false, false },
        { "+2400", false, false, false },  { "+0060", false, false, false }, { "", false, false, false },
        { "-0500 ", false, false, false }, { "EST", false, false, false },
    };
    for ( const OffsetRow& row : rows )
    {
        EXPECT_EQ( IsOffset( row.m_text, PimContactVersion::V21 ), row.m_is21 ) << row.m_text;
        EXPECT_EQ( IsOffset( row.m_text, PimContactVersion::V30 ), row.m_is30 ) << row.m_text;
        EXPECT_EQ( IsOffset( row.m_text, PimContactVersion::V40 ), row.m_is40 ) << row.m_text;
    }
}

} // namespace PimManager::Contacts
