/// \file
/// The data of a contact that a head unit shows. It is copied from one thread to the other. Unlike the fields of a
/// PimContact, it does not keep the memory of its card.

#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

struct Number
{
    QString m_text;
    QString m_label; ///< the user's name for it, such as `boat phone`; often empty
    bool m_isMobile = false;
};

struct Contact
{
    QString m_name;
    Number m_preferred; ///< the number to call; empty if there is none
    QVector<Number> m_numbers;
};

using Contacts = QVector<Contact>;

Q_DECLARE_METATYPE( Contacts )
