#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

/**
 * Renders Markdown that arrives in pieces. Blocks that nothing can change any more come out once, for good; the block that is
 * still being written can be looked at as it stands. What comes out does not depend on how the text was cut into pieces.
 */
class FMarkdownStream
{
public:
	/** Takes the next piece and adds the lines that are now final. */
	void Append(FStringView Piece, int32 Width, TArray<FStyledLine>& OutLines);

	/** The lines behind the final ones, as they would be if the text ended here. */
	TArray<FStyledLine> GetUnfinishedLines(int32 Width) const;

	/** Ends the text, adds the lines that are left and is as new. */
	void Finish(int32 Width, TArray<FStyledLine>& OutLines);

private:
	void TakeLine(FStringView Line, int32 Width, TArray<FStyledLine>& OutLines);
	void FlushBlock(int32 Width, TArray<FStyledLine>& OutLines);
	void AddGap(TArray<FStyledLine>& OutLines);

	/** The line that has no end yet. */
	FString OpenLine;
	/** Whole lines of the block that is being written. */
	FString Block;
	/** What closes the code block that stands open: as many of these, or more; empty outside one. */
	FString Fence;
	bool bBlankLineSeen = false;
	bool bGapWanted = false;
	bool bAnythingWritten = false;
};
