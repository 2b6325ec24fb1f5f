#pragma once

#include "timeline/sources/source.h"

#include <string>
#include <vector>

/// The rows of a source that a filter lets through.
timeline::SourceRows rowsOf(timeline::Source& source,
                            const timeline::Filter& filter = timeline::Filter());

/// The same as texts, such as "2005-10-08 15:23:07.120 RoCsMgr,Store,17,CallFlow,3,text"; of a row
/// without a form "+text".
std::vector<std::string> textsOf(timeline::Source& source,
                                 const timeline::Filter& filter = timeline::Filter());

/// A choice of rows in which a text occurs.
timeline::Filter withText(const std::string& text);

/// A choice by the value of a column.
timeline::Filter withValue(timeline::Column column, const std::string& value);
