/// \file
/// A contact as a head unit shows it. It is copied from one thread to the other and refers to nothing of the card.

#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

struct Contact
{
    QString m_name;
    QStringList m_numbers;
};

using Contacts = QVector<Contact>;

Q_DECLARE_METATYPE( Contacts )
