// The facts that pages may name, by the part of the program that they come from. A fact that is
// asked for something the program doesn't have throws BadPage.
#pragma once

#include "generator/template.h"

namespace arbolith::help {

/// `ui NAME` is a control's caption as it reads, without a colon at its end; `menu NAME` the way to
/// a menu entry; `keys NAME` its shortcut; `size NAME` the characters that a field takes; `version`
/// the program's. A name is as in the form scripts: Form.Control, the form may be left out for the
/// main form.
void AddCaptionFacts(Facts& facts);

/// `range NAME`, `least NAME` and `most NAME` are a limit in metric units with the imperial one in
/// brackets; `limits NAME ...` is a table of limits, of all of them without names.
void AddLimitFacts(Facts& facts);

/// `species WOOD`, `classes WOOD` and `site-index WOOD` are tables; WOOD is softwood or hardwood.
void AddSiteFacts(Facts& facts);

/// `variables` is the table of the result variables, `definitions` what each means;
/// `site-definition NAME` what Land Capability or Site Index means.
void AddVariableFacts(Facts& facts);

/// `new-batch-file` shows a batch file as the program makes it, `batch-fields` is the table of a
/// sequence's fields with two examples; `most-sequences` and `plot-width` are limits;
/// `console-help` is what the console program says of itself.
void AddBatchFacts(Facts& facts);

/// `heights WOOD` shows the height curves of all species of a wood, each with its tables;
/// `plantations` compares a plantation of Norway spruce with one of a native spruce.
void AddGrowthFacts(Facts& facts);

/// `picture NAME text ...` is a picture from the folder `pictures` of the help's sources with the
/// text that stands for it.
void AddPictureFacts(Facts& facts, const std::string& pictureFolder);

}  // namespace arbolith::help
