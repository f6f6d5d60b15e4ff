#include "VexelStringUtil.h"

#include "Containers/StringConv.h"
#include "Internationalization/Text.h"

bool FVexelStringUtil::TryGetTextSource(const FText& Text, FString& OutSource)
{
	const FString* const Source = FTextInspector::GetSourceString(Text);
	if (!Source)
	{
		return false;
	}
	OutSource = *Source;
	return true;
}

std::string FVexelStringUtil::ToStdStringUtf8(const FString& String)
{
	const FTCHARToUTF8 Utf8(*String, String.Len());
	return std::string(Utf8.Get(), size_t(Utf8.Length()));
}
