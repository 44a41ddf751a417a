/// \file
/// What the parser produces: a PimVCard holds PimVCardProperty objects, one for each content line, and each of these
/// holds its PimVCardParameter objects and its values.
///
/// All texts are as the card writes them, in the letter case of the card: QUOTED-PRINTABLE and BASE64 bodies are not
/// decoded, quotes round a parameter value are kept. The objects never change once they are built, so any number of
/// threads may read the same card; handing one over or deleting it is for its single owner.
///
/// Ownership goes down the tree: whoever deletes a card deletes its properties, parameters and values with it. The
/// accessors give copies; the texts in them share their memory with the object, and the pointers in them still belong
/// to it. To print the telephone numbers of a card:
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
    /// \param a_name  the name as written; empty for a bare parameter such as `;HOME`.
    /// \param a_value the value as written: a list keeps its commas, a quoted value keeps its quotes.
    PimVCardParameter( const QString& a_name, const QString& a_value );
    virtual ~PimVCardParameter();
    Q_DISABLE_COPY( PimVCardParameter )

    /// \return the name as written; empty for a bare parameter.
    QString GetName() const;

    /// \return the value as written, for example `HOME,WORK,pref` or `"a, quoted; one"` with its quotes.
    QString GetValue() const;

    /// Writes the parameter to Qt's debug log, three messages: a heading, the name, the value.
    /// \param a_prefix stands at the head of each message; UTF-8, NUL-terminated, not null, used during the call only.
    void Print( const char* a_prefix ) const;

private:
    QString m_value;
    QString m_name;
};

/// One content line: group, name, parameters and values (RFC 2426, section 4).
class PIMVCARD_EXPORT PimVCardProperty
{
public:
    /// \param a_groupID    the group without the dot that ends it; empty for a line without a group.
    /// \param a_name       the property name as written.
    /// \param a_parameters the parameters in the order of the line; the property takes over the list and what it
    ///                     points to. May be null; entries may be null.
    /// \param a_values     the values in the order of the line; the property takes over the list. May be null.
    /// \note  Both lists must have been made with `new`.
    PimVCardProperty( const QString& a_groupID, const QString& a_name, QList<PimVCardParameter*>* a_parameters,
                      QList<QString>* a_values );

    /// Deletes the parameters, first to last, and the two lists. Linear in the number of parameters and values.
    virtual ~PimVCardProperty();
    Q_DISABLE_COPY( PimVCardProperty )

    /// \return the group, `item1` for a line `item1.TEL:…` and `a.b` for a line `a.b.TEL:…`; empty when there is none.
    QString GetGroupID() const;

    /// \return the name as written, never empty for a property that the parser built.
    QString GetName() const;

    /// \return a copy of the list, in the order of the line; empty when the property has no list. The parameters still
    ///         belong to the property and live as long as it does. Constant time.
    QList<PimVCardParameter*> GetParameters() const;

    /// \return a copy of the list, one element for each component between semicolons; empty when the property has no
    ///         list. A property that the parser built has at least one value, which may be empty. Constant time.
    QList<QString> GetValues() const;

    /// Writes the property to Qt's debug log, a message a line: heading, group, name, parameters, values.
    /// \param a_prefix stands at the head of each message, twice before a value; UTF-8, NUL-terminated, not null, used
    ///                 during the call only.
    /// \pre   The property has both lists, and no entry of the parameter list is null. Every property that the parser
    ///        built is so.
    void Print( const char* a_prefix ) const;

private:
    QString m_groupID;
    QString m_name;
    QList<PimVCardParameter*>* m_parameters;
    QList<QString>* m_values;
};

/// One vCard: the properties between its BEGIN and its END line, VERSION among them, in the order of the text.
class PIMVCARD_EXPORT PimVCard
{
public:
    /// \param a_properties the properties; the card takes over the list, made with `new`, and what it points to. May be
    ///                     null; entries may be null.
    explicit PimVCard( QList<PimVCardProperty*>* a_properties );

    /// Deletes the properties, first to last, and the list. Linear in all that the card holds.
    virtual ~PimVCard();
    Q_DISABLE_COPY( PimVCard )

    /// \return a copy of the list, in the order of the text, without the BEGIN and END lines; empty when the card has
    ///         no list. The properties still belong to the card and live as long as it does. Constant time.
    QList<PimVCardProperty*> GetProperties() const;

private:
    QList<PimVCardProperty*>* m_properties;
};

} // namespace PimManager::vCard
