#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"
#include "Templates/Function.h"

/**
 * The end of what a terminal shows: lines that are there for good, and below them lines that may still change. Each change writes
 * what differs and nothing else, in one piece, so that nothing flickers and what has scrolled away stays as it was.
 */
class FLiveLines
{
public:
	using FWrite = TFunction<void(FStringView)>;

	/** What it writes is for a terminal, codes and all. The cursor must stand at the beginning of an empty line. */
	explicit FLiveLines(FWrite InWrite);

	/** The terminal's size, from now on. After a change, what may still change is written anew. */
	void SetSize(int32 InColumns, int32 InRows);
	/** Columns for text; lines that are wider are cut. */
	int32 GetTextWidth() const;
	/** Whether styles go out; without it the text alone does. */
	void SetStyled(bool bInStyled) { bStyled = bInStyled; }

	/** Adds lines for good, and below them shows those that may change in the place of the earlier ones. */
	void Update(const TArray<FStyledLine>& FinalLines, const TArray<FStyledLine>& ChangingLines);

	/** Takes the changing lines back; the cursor stands at the beginning of an empty line again. */
	void Clear() { Update({}, {}); }

private:
	void Rewrite(const TArray<FStyledLine>& NewLines);
	/** What brings the cursor to a column of a line. */
	FString MoveTo(int32 Line, int32 Column);
	/** A line's cells from one on, and where the cursor is then. */
	FString WriteFrom(const FStyledLine& Line, int32 FirstCell);
	/** Back to one empty line, with the cursor in it. */
	void ForgetShown();

	FWrite Write;
	int32 Columns = 80;
	int32 Rows = 24;
	bool bStyled = true;
	/** What stands on the terminal from the first line that may change on, at least one line, and where the cursor is in it. */
	TArray<FStyledLine> Shown;
	int32 CursorLine = 0;
	int32 CursorColumn = 0;
};
