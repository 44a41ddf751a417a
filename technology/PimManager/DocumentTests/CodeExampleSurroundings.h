/// \file
/// What the examples of the documents take for granted: headers, namespaces, and the reader's own things, which are
/// declared and never defined.

#pragma once

#include "PimVCard.h"
#include "PimVCardDecoding.h"
#include "PimVCardDiagnostic.h"
#include "PimVCardExport.h"
#include "PimVCardImportAccount.h"
#include "PimVCardImportOptions.h"
#include "PimVCardImporter.h"
#include "PimVCardLexer.h"
#include "PimVCardParser.h"
#include "PimVCardTextStream.h"
#include "PimVCardVersion.h"
#include "PimVCardVocabulary.h"
#include "Test/PimVCardParserTestBase.h"

#include <QByteArray>
#include <QDebug>
#include <QFile>
#include <QLoggingCategory>
#include <QTextStream>

#include <memory>

using namespace PimManager::vCard;
using namespace PimManager::vCardImport;

/// The fixture of the self-check.
class PimVCardParserTest : public PimVCardParserTestBase
{
};

/// Something that gives pieces of a text.
struct Connection
{
    bool Read( QByteArray& a_piece );
};

bool Store( const PimVCard& a_card );

extern const PimVCard& card;
extern const PimVCardImportAccount account;
extern QFile file;
extern QTextStream out;
extern Connection connection;
extern QByteArray piece;
