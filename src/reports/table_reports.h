// The builders of the Analyze menu's lists and tables of words, morphemes
// and codes, for the report table.
#pragma once

#include "reports/bound_morpheme_tables.h"
#include "reports/category_reports.h"
#include "reports/code_list_reports.h"
#include "reports/code_tables.h"
#include "reports/utterance_lists_report.h"
#include "reports/word_list_report.h"
#include "reports/word_root_table.h"
