#pragma once

#include "Containers/StringConv.h"
#include "StyledText.h"

#include <string>
#include <vector>

/** Lines as plain UTF-8, without blanks at their ends. */
inline std::vector<std::string> ToTexts(const TArray<FStyledLine>& Lines)
{
	std::vector<std::string> Texts;
	for (const FStyledLine& Line : Lines)
	{
		Texts.emplace_back(TCHAR_TO_UTF8(*Line.ToPlainText().TrimEnd()));
	}
	return Texts;
}
