#include "Contact/LineParameters.h"

#include "Contact/KindWords.h"
#include "OneLine.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

// Types between commas, the preference, and the other parameters as name=value between semicolons.
std::string Shown( const QByteArray& a_line, const char* a_version )
{
    const PimContactLine line = OneLine( a_line, a_version );
    LineParameters parameters;
    parameters.Read( PimContactCardPrivate::LineView::LineOf( line ) );
    std::string text;
    for ( size_t i = 0; i < parameters.Types().Size(); ++i )
        text += ( i > 0 ? "," : "" ) + std::string( parameters.Types().Word( i ) );
    text += "|" + std::to_string( parameters.Preference() ) + "|";
    for ( size_t i = 0; i < parameters.Names().Size(); ++i )
        text += ( i > 0 ? ";" : "" ) + std::string( parameters.Names().Word( i ) ) + "=" +
                std::string( parameters.Value( i ) );
    return text;
}

struct Row
{
    const char* m_line;
    const char* m_shown;
};

constexpr std::array s_kRows = {
    Row{ "TEL:1", "|0|" },
    Row{ "TEL;TYPE=home,cell;TYPE=voice:1", "home,cell,voice|0|" },
    Row{ "TEL;HOME;CELL=:1", "HOME,CELL|0|" },
    Row{ "TEL;TYPE=\"home,cell\":1", "home,cell|0|" },
    Row{ "TEL;TYPE=\"main line\":1", "main line|0|" },
    Row{ "TEL;TYPE=isdn\\,fax:1", "isdn,fax|0|" },
    Row{ "TEL;TYPE==home:1", "home|0|" },
    Row{ "TEL;TYPE='home':1", "home|0|" },
    Row{ "TEL;TYPE=\\\"home\\\":1", "home|0|" },
    Row{ "TEL;TYPE=_$!<Home>!$_:1", "Home|0|" },
    Row{ "TEL;TYPE=pref,home:1", "home|1|" },
    Row{ "TEL;PREF:1", "|1|" },
    Row{ "TEL;PREF=7:1", "|7|" },
    Row{ "TEL;PREF=100;TYPE=pref:1", "|100|" },
    Row{ "TEL;PREF=0:1", "|0|" },
    Row{ "TEL;PREF=101:1", "|0|" },
    Row{ "TEL;PREF=x;TYPE=pref:1", "|1|" },
    Row{ "TEL;PREF=\"2\":1", "|2|" },
    Row{ "TEL;PREF=x;PREF=2:1", "|0|" },
    Row{ "NOTE;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE;8BIT:1", "|0|" },
    Row{ "NOTE;SHIFT_JIS:1", "|0|" },
    Row{ "PHOTO;INLINE;URL:1", "|0|VALUE=INLINE;VALUE=URL" },
    Row{ "TEL;X-A=\"b,c\",d;LANGUAGE=en;x-a=e:1", "|0|X-A=b,c;X-A=d;LANGUAGE=en;x-a=e" },
    Row{ "TEL;X-A=^n^'^^;X-B=^n:1", "|0|X-A=\n\"^;X-B=\n" },
    Row{ "ADR;LABEL=\"a\\nb\":1", "|0|LABEL=a\nb" },
    Row{ "TEL;X-A=:1", "X-A|0|" },
    Row{ "TEL;LANGUAGE=:1", "|0|LANGUAGE=" },
};

struct LabelRow
{
    const char* m_line;
    const char* m_label;
    const char* m_labelsOfTypes;
};

constexpr std::array s_kLabels = {
    LabelRow{ "TEL:1", "", "" },
    LabelRow{ "TEL;X-CUSTOM=Boat:1", "Boat", "" },
    LabelRow{ "TEL;X-CUSTOM=\" Boat, big \":1", "Boat, big", "" },
    LabelRow{ "TEL;X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=42=6F=61=74):1", "Boat", "" },
    LabelRow{ "TEL;CELL;X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=D0=94=D0=B0,=D1=87):1",
              "\xD0\x94\xD0\xB0,\xD1\x87", "CELL" },
    LabelRow{ "TEL;X-CUSTOM=A;X-CUSTOM=B:1", "A", "" },
    LabelRow{ "TEL;X-Boat:1", "", "Boat" },
    LabelRow{ "TEL;TYPE=X-Boat:1", "", "Boat" },
    LabelRow{ "TEL;TYPE=\"X-Boat phone\":1", "", "Boat phone" },
    LabelRow{ "TEL;TYPE=boat,X-:1", "", "boat,X-" },
};

} // namespace

TEST( LineParametersTest, ParametersAreRead )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( Shown( row.m_line, "3.0" ), row.m_shown ) << row.m_line;
    EXPECT_EQ( Shown( "TEL;X-A=^n:1", "2.1" ), "|0|X-A=^n" );
}

TEST( LineParametersTest, LabelsAreRead )
{
    for ( const LabelRow& row : s_kLabels )
    {
        const PimContactLine line = OneLine( row.m_line, "2.1" );
        LineParameters parameters;
        parameters.Read( PimContactCardPrivate::LineView::LineOf( line ) );
        EXPECT_EQ( parameters.CustomLabel(), row.m_label ) << row.m_line;
        std::string labels;
        for ( size_t i = 0; i < parameters.Types().Size(); ++i )
            labels += ( i > 0 ? "," : "" ) + std::string( CustomLabelOf( parameters.Types().Word( i ) ) );
        EXPECT_EQ( labels, row.m_labelsOfTypes ) << row.m_line;
    }
}

TEST( LineParametersTest, OneObjectReadsManyLines )
{
    LineParameters parameters;
    parameters.Read( PimContactCardPrivate::LineView::LineOf( OneLine( "TEL;TYPE=home;PREF=1;X-A=b:1" ) ) );
    EXPECT_EQ( parameters.Preference(), 1 );
    parameters.Read( PimContactCardPrivate::LineView::LineOf( OneLine( "TEL:1" ) ) );
    EXPECT_EQ( parameters.Types().Size(), 0U );
    EXPECT_EQ( parameters.Names().Size(), 0U );
    EXPECT_EQ( parameters.Preference(), 0 );
}

} // namespace PimManager::Contacts
