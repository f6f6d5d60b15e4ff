#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

enum class ETextAlignment : uint8
{
	Left,
	Center,
	Right,
};

/** A table of texts; the first row is its head. A row may be shorter than the others. */
struct FTextTable
{
	TArray<ETextAlignment> Alignments;
	TArray<TArray<FStyledLine>> Rows;
};

/** The table with rules between its columns. Columns that do not fit into Width give way, the widest first, and their texts wrap. */
TArray<FStyledLine> RenderTable(const FTextTable& Table, int32 Width);
