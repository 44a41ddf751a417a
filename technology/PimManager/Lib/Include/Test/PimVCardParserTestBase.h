/// \file
/// The fixture of the self-check cases. It has the parser of the case and functions that check its results.
///
/// A case creates a parser for its own text, calls one parse operation and checks the result:
///
/// \code
/// TEST_F( PimVCardParserTest, OneLine )
/// {
///     sm_parser = new PimVCardParser( "TEL;TYPE=HOME:5550102\r\n" );
///
///     PimVCardProperty* property = GetParsedProperty();
///     TestProperty( property, "", "TEL", 1, { "TYPE" }, { "HOME" }, 1, { "5550102" } );
///     delete property;
/// }
/// \endcode
///
/// **Ownership.** The fixture deletes the parser after the case, even if the case failed. The case owns what an
/// operation returned and deletes it at its end. A fatal failure of the case itself leaves it undeleted.
///
/// **Failures.** The check functions record fatal failures with the line in this header. A fatal failure ends the check
/// function, and the case continues with its next statement.
///
/// **Texts.** Expected texts are NUL-terminated and in the local 8-bit encoding. The parsed texts are converted to this
/// encoding, and the two are compared byte by byte. ASCII texts compare alike in every locale.

#pragma once

#include "PimVCardParser.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace PimManager::vCard
{

/// The fixture base. It has no data of its own. Everything except SetUp() and TearDown() is static, so that functions
/// outside the cases can use the check functions too. The helpers that call the parser need `sm_parser` to be set.
class PimVCardParserTestBase : public testing::Test
{
public:
    /// The parser of the running case. Null until the case sets it, with `new`. The fixture then owns it.
    static inline PimVCardParser* sm_parser = nullptr;

    /// \return the prepared text in UTF-8: the text that the parser was given, up to its first NUL byte, without the
    ///         byte order mark at its start, with folded lines and encoded line breaks joined, and with U+FFFD for
    ///         bytes that are not UTF-8. No parse operation changes it.
    static QByteArray GetParserData();

    /// Calls ParseGroup().
    /// \param[in,out] a_vCardBoundary the caller sets it to false. Afterwards it is true for a BEGIN or END line.
    /// \return the groups without the last dot. Empty if there is none, and on failure.
    static QString GetParsedGroup( bool& a_vCardBoundary );

    /// Calls ParseParameter() as for a line other than BEGIN and END.
    /// \return a new parameter, owned by the caller. Null at the end of the parameters and on failure.
    static PimVCardParameter* GetParsedParameter();

    /// Calls ParseParameters() as for a line other than BEGIN and END.
    /// \return a new list of new parameters. The caller owns the list and the parameters. Null on failure.
    static QList<PimVCardParameter*>* GetParsedParameters();

    /// Calls ParseProperty().
    /// \return a new property, owned by the caller. Null on failure.
    static PimVCardProperty* GetParsedProperty();

    /// Calls ParseVCard().
    /// \return a new card, owned by the caller. Null on failure.
    static PimVCard* GetParsedVCard();

    /// Calls ParseStart() once and checks that it returns what is expected.
    static void TestParseStart( bool a_expected );

    /// Calls ParseEnd() once and checks that it returns what is expected.
    /// \param a_property the property. The caller keeps ownership. May be null.
    static void TestParseEnd( PimVCardProperty* a_property, bool a_expected );

    /// Compares the group, name, parameters and values of a property with the expected ones, in this order. Only the
    /// first difference is reported. A missing list of parameters or values counts as an empty list. Needs no parser.
    ///
    /// \param a_property    the property. The caller keeps ownership. Null is a failure.
    /// \param a_group       the group; "" for none. None of the texts here may be null.
    /// \param a_name        the property name.
    /// \param a_paramCount  the number of parameters.
    /// \param a_paramNames  a name for each parameter, in the order of the line; "" for a bare parameter.
    /// \param a_paramValues a value for each parameter. A quoted value includes its quotes.
    /// \param a_valueCount  the number of values.
    /// \param a_valueValues the values, in the order of the line; "" for an empty one.
    /// \note  If a count differs from the length of its expected list, the case fails and nothing is compared.
    static void TestProperty( PimVCardProperty* a_property, const char* a_group, const char* a_name, int a_paramCount,
                              const QList<const char*>& a_paramNames, const QList<const char*>& a_paramValues,
                              int a_valueCount, const QList<const char*>& a_valueValues );

protected:
    /// Starts the case without a parser.
    void SetUp() override;

    /// Deletes the parser of the case, if it created one.
    void TearDown() override;
};

inline void PimVCardParserTestBase::SetUp()
{
    sm_parser = nullptr;
}

inline void PimVCardParserTestBase::TearDown()
{
    delete sm_parser;
    sm_parser = nullptr;
}

inline QByteArray PimVCardParserTestBase::GetParserData()
{
    return sm_parser->m_data;
}

inline QString PimVCardParserTestBase::GetParsedGroup( bool& a_vCardBoundary )
{
    return sm_parser->ParseGroup( a_vCardBoundary );
}

inline PimVCardParameter* PimVCardParserTestBase::GetParsedParameter()
{
    return sm_parser->ParseParameter( false );
}

inline QList<PimVCardParameter*>* PimVCardParserTestBase::GetParsedParameters()
{
    return sm_parser->ParseParameters( false );
}

inline PimVCardProperty* PimVCardParserTestBase::GetParsedProperty()
{
    return sm_parser->ParseProperty();
}

inline PimVCard* PimVCardParserTestBase::GetParsedVCard()
{
    return sm_parser->ParseVCard();
}

inline void PimVCardParserTestBase::TestParseStart( bool a_expected )
{
    if ( a_expected )
    {
        ASSERT_TRUE( sm_parser->ParseStart() );
    }
    else
    {
        ASSERT_FALSE( sm_parser->ParseStart() );
    }
}

inline void PimVCardParserTestBase::TestParseEnd( PimVCardProperty* a_property, bool a_expected )
{
    if ( a_expected )
    {
        ASSERT_TRUE( sm_parser->ParseEnd( a_property ) );
    }
    else
    {
        ASSERT_FALSE( sm_parser->ParseEnd( a_property ) );
    }
}

// One function on purpose: a fatal failure ends only the function that contains it.
inline void PimVCardParserTestBase::TestProperty( PimVCardProperty* a_property, const char* a_group, const char* a_name,
                                                  int a_paramCount, const QList<const char*>& a_paramNames,
                                                  const QList<const char*>& a_paramValues, int a_valueCount,
                                                  const QList<const char*>& a_valueValues )
{
    if ( a_paramNames.size() != a_paramCount || a_paramValues.size() != a_paramCount ||
         a_valueValues.size() != a_valueCount )
    {
        FAIL() << "Error in TestProperty: size mismatch...";
    }

    ASSERT_TRUE( a_property );
    ASSERT_STREQ( a_group, a_property->GetGroupID().toLocal8Bit().toStdString().c_str() );
    ASSERT_STREQ( a_name, a_property->GetName().toLocal8Bit().toStdString().c_str() );

    const QList<PimVCardParameter*> parameters = a_property->GetParameters();
    ASSERT_EQ( a_paramCount, parameters.size() );
    for ( int i = 0; i < parameters.size(); ++i )
    {
        ASSERT_STREQ( a_paramNames.at( i ), parameters.at( i )->GetName().toLocal8Bit().toStdString().c_str() );
        ASSERT_STREQ( a_paramValues.at( i ), parameters.at( i )->GetValue().toLocal8Bit().toStdString().c_str() );
    }

    const QList<QString> values = a_property->GetValues();
    ASSERT_EQ( a_valueCount, values.size() );
    for ( int i = 0; i < values.size(); ++i )
    {
        ASSERT_STREQ( a_valueValues.at( i ), values.at( i ).toLocal8Bit().toStdString().c_str() );
    }
}

} // namespace PimManager::vCard
