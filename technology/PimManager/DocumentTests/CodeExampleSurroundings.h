/// \file
/// The declarations that the examples of the documents require: headers, namespaces, and objects of the reader's
/// program, which are declared but never defined.

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
