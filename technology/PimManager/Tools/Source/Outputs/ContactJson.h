/// \file
/// Contacts as JSON.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFile.h"

#include <PimManager/Contacts/PimContactJson.h>

#include <QByteArray>

namespace PimManager::Tools
{

/// Writes each contact as an object on a line of its own, in the format of docs/program.md.
class ContactJson : public BookOutput
{
public:
    enum class Form
    {
        Document, ///< one array of all objects
        Lines,    ///< one document for each object
    };

    /// The first two parameters are those of OutputFile.
    ContactJson( const QByteArray& a_fileName, OutputClaims& a_claims, Form a_form );

    void Begin() override;
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    void Abandon() override { m_file.Abandon(); }
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;

private:
    OutputFile m_file;
    const bool m_isDocument;
    bool m_isFirst = true;
    // The number of the file.
    int m_book = 0;
    Contacts::PimContactJson m_json;
    QByteArray m_buffer;
};

} // namespace PimManager::Tools
