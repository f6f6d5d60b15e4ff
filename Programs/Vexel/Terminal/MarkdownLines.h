#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

/** A Markdown text (CommonMark with tables, task lists and struck text) as lines of at most Width columns. HTML in it is text. */
TArray<FStyledLine> RenderMarkdown(FStringView Text, int32 Width);

/** A line of a code block, which keeps its blanks. */
TArray<FStyledLine> RenderCodeLine(FStringView Code, int32 Width);
