#pragma once

#include "CoreMinimal.h"

#include <string>
#include <vector>

/** What a terminal of a given size shows after the codes that it was sent, and what has scrolled out of it. A wide character takes two cells. */
class FTestScreen
{
public:
	FTestScreen(int32 InColumns, int32 InRows);

	void Write(FStringView Text);
	/** Lines keep their text as it is. */
	void Resize(int32 NewColumns, int32 NewRows);

	/** All lines ever shown, those that scrolled away first, without blanks at their ends and empty lines at the end. */
	std::vector<std::string> GetLines() const;
	int32 GetCursorLine() const { return int32(ScrolledAway) + Row; }
	int32 GetCursorColumn() const { return Column; }
	/** Characters written so far, codes left out. */
	int32 GetNumWritten() const { return NumWritten; }
	/** Codes that this terminal does not know: none should ever be sent. */
	int32 GetNumUnknownCodes() const { return NumUnknownCodes; }

private:
	using FCells = std::vector<std::string>;

	void Put(FStringView Character);
	void BeginLine();
	void RemoveCells(size_t Count);
	int32 RunCode(FStringView Text);
	FCells& CurrentLine() { return Lines[ScrolledAway + size_t(Row)]; }

	int32 Columns;
	int32 Rows;
	std::vector<FCells> Lines;
	size_t ScrolledAway = 0;
	int32 Row = 0;
	int32 Column = 0;
	int32 NumWritten = 0;
	int32 NumUnknownCodes = 0;
};
