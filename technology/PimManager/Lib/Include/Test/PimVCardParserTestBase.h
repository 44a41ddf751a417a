/// \file
/// The fixture under the cases of the self-check: the parser of the case and the checkers of what it gives.
///
/// A case makes a parser over its own text, drives one parse operation and checks the result:
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
/// **Ownership.** The fixture deletes the parser after the case, also when the case has failed. What an operation
/// returned belongs to the case, which deletes it at its end; a fatal failure of the case itself leaves it undeleted.
///
/// **Failures.** The checkers record fatal failures with the place in this header. A fatal failure ends the checker,
/// and the case goes on with its next statement.
///
/// **Texts.** Expected texts are NUL-terminated and in the local 8-bit encoding, into which the parsed texts are turned
/// before the two are compared byte by byte. ASCII texts compare alike under every locale.

#pragma once

#include "PimVCardParser.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace PimManager::vCard
{

/// The fixture base. It has no data of its own: all but SetUp() and TearDown() is static, so that functions beside the
/// cases can use the checkers too. The helpers that drive the parser need `sm_parser` to be set.
class PimVCardParserTestBase : public testing::Test
{
public:
    /// The parser of the running case: null until the case sets it, with `new`; owned by the fixture from then on.
    static inline PimVCardParser* sm_parser = nullptr;

    /// \return the prepared text, in UTF-8: the text that the parser was given, up to its first NUL byte, without the
    ///         byte order mark at its start, with folded lines and encoded line breaks joined, and with U+FFFD for
    ///         bytes that are not UTF-8. It is the same before and after any parse operation.
    static QByteArray GetParserData();

    /// Drives ParseGroup().
    /// \param[in,out] a_vCardBoundary the caller sets it to false; true afterwards for a BEGIN or END line.
    /// \return the groups without the last dot; empty when there is none, and on failure.
    static QString GetParsedGroup( bool& a_vCardBoundary );

    /// Drives ParseParameter() as for a line other than BEGIN and END.
    /// \return a new parameter, owned by the caller; null at the end of the parameters and on failure.
    static PimVCardParameter* GetParsedParameter();

    /// Drives ParseParameters() as for a line other than BEGIN and END.
    /// \return a new list of new parameters, both owned by the caller; null on failure.
    static QList<PimVCardParameter*>* GetParsedParameters();

    /// Drives ParseProperty().
    /// \return a new property, owned by the caller; null on failure.
    static PimVCardProperty* GetParsedProperty();

    /// Drives ParseVCard().
    /// \return a new card, owned by the caller; null on failure.
    static PimVCard* GetParsedVCard();

    /// Drives ParseStart() once and checks that it says what is expected.
    static void TestParseStart( bool a_expected );

    /// Drives ParseEnd() once and checks that it says what is expected.
    /// \param a_property stays the caller's; may be null.
    static void TestParseEnd( PimVCardProperty* a_property, bool a_expected );

    /// Compares a property with what is expected of it: group, name, parameters, values, in this order. The first
    /// difference is the only one told. A property without a list of parameters or values counts as one with an empty
    /// list. Needs no parser.
    ///
    /// \param a_property    stays the caller's; null is a failure.
    /// \param a_group       the group; "" for none. Not null, like every text here.
    /// \param a_name        the property name.
    /// \param a_paramCount  the number of parameters.
    /// \param a_paramNames  a name for each parameter, in the order of the line; "" for a bare parameter.
    /// \param a_paramValues a value for each parameter; a quoted value with its quotes.
    /// \param a_valueCount  the number of values.
    /// \param a_valueValues the values, in the order of the line; "" for an empty one.
    /// \note  Counts that are not those of the expected lists are a failure of the case; nothing is compared then.
    static void TestProperty( PimVCardProperty* a_property, const char* a_group, const char* a_name, int a_paramCount,
                              const QList<const char*>& a_paramNames, const QList<const char*>& a_paramValues,
                              int a_valueCount, const QList<const char*>& a_valueValues );

protected:
    /// Starts the case without a parser.
    void SetUp() override;

    /// Deletes the parser of the case, if it has made one.
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

// One function on purpose: a fatal failure ends only the function that it stands in.
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
