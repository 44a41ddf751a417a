/// \file
/// Many JSON objects in one text.

#pragma once

#include <QtGlobal>

class QIODevice;

namespace PimManager::vCard::Tools
{

/// What stands round the objects, each of which has a line of its own.
class JsonRecords
{
public:
    enum class Form
    {
        Document, ///< One array of all objects.
        Lines     ///< One document for each object.
    };

    /// \param a_device must be open and outlive the records.
    JsonRecords( QIODevice& a_device, Form a_form );
    Q_DISABLE_COPY( JsonRecords )

    /// Comes before the first object, also when there will be none.
    void Begin();
    void BeginRecord();
    void EndRecord();
    /// Comes after the last object.
    void End();

private:
    QIODevice& m_device;
    const bool m_isDocument;
    bool m_isFirst = true;
};

} // namespace PimManager::vCard::Tools
