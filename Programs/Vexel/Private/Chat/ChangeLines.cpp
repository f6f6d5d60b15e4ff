#include "Chat/ChangeLines.h"

#include "BlueprintDiff.h"
#include "DiffPicture.h"

namespace
{
/** Of one Blueprint: a large edit must not push the conversation off the screen. */
constexpr int32 MaxLines = 30;
}

TArray<FStyledLine> DrawChanges(const TArray<FBlueprintDiff>& Changes, int32 Width, const TCHAR* Indent)
{
	TArray<FStyledLine> Lines;
	for (const FBlueprintDiff& Change : Changes)
	{
		for (const FStyledLine& Line : DrawDiff(Change, Width - FCString::Strlen(Indent), MaxLines))
		{
			// A picture has a least width, a terminal has none.
			Lines.Add(FStyledLine(Indent).Append(Line).CutTo(Width));
		}
	}
	return Lines;
}
