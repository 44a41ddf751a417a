/// \file
/// A contact as a head unit shows it. It is copied from one thread to the other and does not hold the memory of its
/// card, as the fields of a PimContact do.

#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

struct Number
{
    QString m_text;
    QString m_label; ///< what the owner of the book calls it, such as `boat phone`; often empty
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
