#include "Misc/FileHelper.h"
#include "Tools/VexelSourceDeclarations.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/** Every declaration that is found has a name, and lies on lines that the text has. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	FString Text;
	FFileHelper::BufferToString(Text, Data, int32(Size));
	const int32 NumLines = 1 + int32(std::count(Text.begin(), Text.end(), TEXT('\n')));
	for (const FVexelSourceDeclaration& Declaration : ReadVexelSourceDeclarations(Text))
	{
		const bool bOrdered = Declaration.FirstLine >= 1 && Declaration.FirstLine <= Declaration.LastLine && Declaration.LastLine <= NumLines;
		if (Declaration.Name.IsEmpty() || !bOrdered)
		{
			abort();
		}
	}
	return 0;
}
