/// \file
/// The results of the parser. A PimVCard owns PimVCardProperty objects, one per content line. Each property owns its
/// PimVCardParameter objects and its values.
///
/// All texts are returned as written, in the letter case of the card. QUOTED-PRINTABLE and BASE64 bodies are not
/// decoded, and the quotes around a parameter value are kept. The objects are immutable, so any number of threads may
/// read the same card. Only its single owner may hand it over or delete it.
///
/// Deleting a card also deletes its properties, parameters and values. The accessors return copies. The texts in a copy
/// share their memory with the object, and the pointers in it still belong to the object. To print the telephone
/// numbers of a card:
///
/// \code
/// for ( const PimVCardProperty* property : card.GetProperties() )
/// {
///     if ( property->GetName().compare( s_kTel, Qt::CaseInsensitive ) == 0 )
///         qDebug() << property->GetValues().join( s_kSemicolon );
/// }
/// \endcode

#pragma once

#include "PimVCardExport.h"

#include <QList>
#include <QString>

namespace PimManager::vCard
{

/// One parameter of a content line, such as `TYPE=WORK` in `TEL;TYPE=WORK:5550102`.
class PIMVCARD_EXPORT PimVCardParameter
{
public:
    /// \param a_name  the name as written. Empty for a bare parameter such as `;HOME`.
    /// \param a_value the value as written. A list keeps its commas, and a quoted value keeps its quotes.
    PimVCardParameter( const QString& a_name, const QString& a_value );
    virtual ~PimVCardParameter();
    Q_DISABLE_COPY( PimVCardParameter )

    /// \return the name as written. Empty for a bare parameter.
    QString GetName() const;

    /// \return the value as written, for example `HOME,WORK,pref` or `"a, quoted; one"` with its quotes.
    QString GetValue() const;

    /// Writes the parameter to Qt's debug log in three messages: a heading, the name and the value.
    /// \param a_prefix begins each message. UTF-8, NUL-terminated, not null, used during the call only.
    void Print( const char* a_prefix ) const;

private:
    QString m_value;
    QString m_name;
};

/// One content line: group, name, parameters and values (RFC 2426, section 4).
class PIMVCARD_EXPORT PimVCardProperty
{
public:
    /// \param a_groupID    the group without its trailing dot. Empty for a line without a group.
    /// \param a_name       the property name as written.
    /// \param a_parameters the parameters in the order of the line. The property takes ownership of the list and its
    ///                     elements. May be null; entries may be null.
    /// \param a_values     the values in the order of the line. The property takes ownership of the list. May be null.
    /// \note  Both lists must have been created with `new`.
    PimVCardProperty( const QString& a_groupID, const QString& a_name, QList<PimVCardParameter*>* a_parameters,
                      QList<QString>* a_values );

    /// Deletes the parameters, first to last, and both lists. Linear in the number of parameters and values.
    virtual ~PimVCardProperty();
    Q_DISABLE_COPY( PimVCardProperty )

    /// \return the group: `item1` for a line `item1.TEL:…`, `a.b` for a line `a.b.TEL:…`. Empty if there is none.
    QString GetGroupID() const;

    /// \return the name as written. Never empty for a property that the parser created.
    QString GetName() const;

    /// \return a copy of the list, in the order of the line. Empty if the property has no list. The parameters still
    ///         belong to the property and live as long as it does. Constant time.
    QList<PimVCardParameter*> GetParameters() const;

    /// \return a copy of the list, with one element for each component between semicolons. Empty if the property has no
    ///         list. A property that the parser created has at least one value, which may be empty. Constant time.
    QList<QString> GetValues() const;

    /// Writes the property to Qt's debug log, one message for each line: a heading, the group, the name, the parameters
    /// and the values.
    /// \param a_prefix begins each message, and is written twice before a value. UTF-8, NUL-terminated, not null, used
    ///                 during the call only.
    /// \pre   The property has both lists, and no entry of the parameter list is null. This is true of every property
    ///        that the parser created.
    void Print( const char* a_prefix ) const;

private:
    QString m_groupID;
    QString m_name;
    QList<PimVCardParameter*>* m_parameters;
    QList<QString>* m_values;
};

/// One vCard: the properties between its BEGIN and END lines, including VERSION, in the order of the text.
class PIMVCARD_EXPORT PimVCard
{
public:
    /// \param a_properties the properties. The card takes ownership of the list, which must have been created with
    ///                     `new`, and of its elements. May be null; entries may be null.
    explicit PimVCard( QList<PimVCardProperty*>* a_properties );

    /// Deletes the properties, first to last, and the list. Linear in everything that the card owns.
    virtual ~PimVCard();
    Q_DISABLE_COPY( PimVCard )

    /// \return a copy of the list, in the order of the text, without the BEGIN and END lines. Empty if the card has no
    ///         list. The properties still belong to the card and live as long as it does. Constant time.
    QList<PimVCardProperty*> GetProperties() const;

private:
    QList<PimVCardProperty*>* m_properties;
};

} // namespace PimManager::vCard
