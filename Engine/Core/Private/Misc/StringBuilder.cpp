#include "Misc/StringBuilder.h"

#include "Containers/StringConv.h"

template <>
TStringBuilderBase<TCHAR>& TStringBuilderBase<TCHAR>::AppendWidened(const UTF8CHAR* Text, int32 Count)
{
	EnsureAdditionalCapacity(Count);
	CurPos += UE::Core::Private::ConvertUtf8ToTChar(CurPos, Text, Count);
	return *this;
}

void UE::Core::Private::AppendSigned(FStringBuilderBase& Builder, int64 Value)
{
	Builder.Appendf(TEXT("%lld"), Value);
}

void UE::Core::Private::AppendUnsigned(FStringBuilderBase& Builder, uint64 Value)
{
	Builder.Appendf(TEXT("%llu"), Value);
}

void UE::Core::Private::AppendDouble(FStringBuilderBase& Builder, double Value)
{
	Builder.Appendf(TEXT("%f"), Value);
}
