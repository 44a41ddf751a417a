#include "Checks/ConversionChecks.h"

#include "PimVCard.h"

#include <PimManager/Contacts/PimContactJson.h>
#include <PimManager/Contacts/PimContactVCard.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageLogContext>
#include <QtGlobal>

#include <algorithm>

namespace PimManager::Contacts::Checks
{

namespace
{

// Counts the messages between its construction and its destruction. Only one object may exist, in one thread.
class LogCounter
{
public:
    LogCounter() :
        m_former(
            qInstallMessageHandler( []( QtMsgType, const QMessageLogContext&, const QString& ) { ++sm_messages; } ) )
    {
        sm_messages = 0;
    }
    ~LogCounter() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( LogCounter )

    int Messages() const { return sm_messages; }

private:
    inline static int sm_messages = 0;
    const QtMessageHandler m_former;
};

Broken BrokenProperty( const vCard::PimVCardProperty* a_property )
{
    return FirstBroken( [&] { return Holds( a_property != nullptr, "a property of the objects is null" ); },
                        [&] { return Holds( !a_property->GetName().isEmpty(), "a property has no name" ); },
                        [&] { return Holds( !a_property->GetValues().isEmpty(), "a property has no value" ); } );
}

Broken BrokenObjectsOf( const PimContactCard& a_card )
{
    const LogCounter log;
    const PimContactVCard objects = PimContactVCard::FromCard( a_card );
    if ( objects.IsNull() )
        return "a card has no objects";
    const QList<vCard::PimVCardProperty*> properties = objects->GetProperties();
    return FirstBroken( [&] { return Same( "messages on the log", log.Messages(), 0 ); },
                        [&] { return Same( "properties of the objects", properties.size(), a_card.LineCount() ); },
                        [&] { return FirstBrokenOf( properties, BrokenProperty ); } );
}

Broken BrokenObjectsOfAll( const PimContactCard& a_card )
{
    const auto ofNested = []( const PimContactLine& a_line )
    { return a_line.NestedCard().IsNull() ? Broken() : BrokenObjectsOfAll( a_line.NestedCard() ); };
    return FirstBroken( [&] { return BrokenObjectsOf( a_card ); }, [&] { return FirstBrokenOf( a_card, ofNested ); } );
}

bool IsControl( char a_byte )
{
    return static_cast<unsigned char>( a_byte ) < 0x20 || a_byte == 0x7F;
}

} // namespace

Broken BrokenObjects( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_cards, []( const PimContactCard& a_card )
                          { return InCard( BrokenObjectsOfAll( a_card ), a_card ); } );
}

Broken BrokenJson( const Subject& a_subject )
{
    PimContactJson json;
    QByteArray buffer;
    return FirstBrokenOf( a_subject.m_reading.m_cards,
                          [&]( const PimContactCard& a_card )
                          {
                              const QByteArray text = PimContactJson::Of( a_card );
                              buffer = "before";
                              json.Append( a_card, buffer );
                              const auto isSame = [&]
                              { return Holds( buffer == "before" + text, "Append() and Of() differ" ); };
                              const auto isJson = [&] { return BrokenJsonText( text, a_card.LineCount() ); };
                              return InCard( FirstBroken( isSame, isJson ), a_card );
                          } );
}

Broken BrokenJsonText( const QByteArray& a_json, int a_properties )
{
    // Qt's parser would also accept blanks around the object and control characters in a string.
    const bool isObject = a_json.startsWith( '{' ) && a_json.endsWith( '}' );
    const bool hasControls = std::any_of( a_json.begin(), a_json.end(), IsControl );
    const bool isUtf8 = QString::fromUtf8( a_json ).toUtf8() == a_json;
    QJsonParseError error{};
    const QJsonObject object = QJsonDocument::fromJson( a_json, &error ).object();
    const QJsonArray properties = object.value( QLatin1String( "properties" ) ).toArray();
    return FirstBroken( [&] { return Holds( isObject, "the JSON is not an object" ); },
                        [&] { return Holds( !hasControls, "the JSON has control characters" ); },
                        [&] { return Holds( isUtf8, "the JSON is not UTF-8" ); },
                        [&] { return Holds( error.error == QJsonParseError::NoError, "the JSON cannot be parsed" ); },
                        [&] { return Same( "properties of the JSON", properties.size(), a_properties ); } );
}

} // namespace PimManager::Contacts::Checks
