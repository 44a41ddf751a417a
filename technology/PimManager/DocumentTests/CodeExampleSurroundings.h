/// \file
/// What the examples of the documents take for granted: headers, namespaces, and the reader's own things, which are
/// declared and never defined.

#pragma once

#include "PimVCard.h"
#include "PimVCardExport.h"
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

#include <memory>

using namespace PimManager::vCard;

/// The fixture of the self-check.
class PimVCardParserTest : public PimVCardParserTestBase
{
};

extern const PimVCard& card;
