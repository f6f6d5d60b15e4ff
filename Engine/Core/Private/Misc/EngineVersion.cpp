#include "Misc/EngineVersion.h"

#include "Serialization/Archive.h"

EVersionComparison FEngineVersionBase::GetNewest(
	const FEngineVersionBase& First, const FEngineVersionBase& Second, EVersionComponent* OutComponent)
{
	const uint32 Pairs[][2] = {{First.Major, Second.Major}, {First.Minor, Second.Minor}, {First.Patch, Second.Patch},
		{First.GetChangelist(), Second.GetChangelist()}};
	const bool bSameNumbering = First.IsLicenseeVersion() == Second.IsLicenseeVersion() && First.HasChangelist() && Second.HasChangelist();
	const int32 NumToCompare = bSameNumbering ? 4 : 3;
	for (int32 Component = 0; Component < NumToCompare; ++Component)
	{
		const uint32* const Pair = Pairs[Component];
		if (Pair[0] == Pair[1])
		{
			continue;
		}
		if (OutComponent != nullptr)
		{
			*OutComponent = static_cast<EVersionComponent>(Component);
		}
		return Pair[0] > Pair[1] ? EVersionComparison::First : EVersionComparison::Second;
	}
	return EVersionComparison::Neither;
}

bool FEngineVersion::IsCompatibleWith(const FEngineVersionBase& Other) const
{
	return !Other.HasChangelist() || !HasChangelist() || GetNewest(*this, Other, nullptr) != EVersionComparison::Second;
}

FString FEngineVersion::ToString(EVersionComponent LastComponent) const
{
	FString Result = FString::Printf(TEXT("%u"), GetMajor());
	if (LastComponent >= EVersionComponent::Minor)
	{
		Result += FString::Printf(TEXT(".%u"), GetMinor());
	}
	if (LastComponent >= EVersionComponent::Patch)
	{
		Result += FString::Printf(TEXT(".%u"), GetPatch());
	}
	if (LastComponent >= EVersionComponent::Changelist)
	{
		Result += FString::Printf(TEXT("-%u"), GetChangelist());
	}
	if (LastComponent >= EVersionComponent::Branch && !Branch.IsEmpty())
	{
		Result += TEXT("+");
		Result += Branch;
	}
	return Result;
}

bool FEngineVersion::Parse(const FString& Text, FEngineVersion& OutVersion)
{
	uint64 Numbers[4] = {};
	constexpr uint64 Largest[4] = {0xffff, 0xffff, 0xffff, 0x7fffffff};
	constexpr TCHAR Separators[4] = {'.', '.', '-', '+'};
	int32 Index = 0;
	int32 Component = 0;
	for (; Component < 4; ++Component)
	{
		const int32 Start = Index;
		for (; Index < Text.Len() && Text[Index] >= '0' && Text[Index] <= '9'; ++Index)
		{
			Numbers[Component] = Numbers[Component] * 10 + (Text[Index] - '0');
			if (Numbers[Component] > Largest[Component])
			{
				return false;
			}
		}
		if (Index == Start)
		{
			return false;
		}
		if (Index == Text.Len() || Text[Index] != Separators[Component])
		{
			break;
		}
		++Index;
	}
	// A version without a change list or without a branch ends after the number.
	const bool bHasBranch = Component == 4;
	if (Component < 2 || (!bHasBranch && Index != Text.Len()))
	{
		return false;
	}
	OutVersion.Set(static_cast<uint16>(Numbers[0]), static_cast<uint16>(Numbers[1]), static_cast<uint16>(Numbers[2]),
		static_cast<uint32>(Numbers[3]), bHasBranch ? Text.RightChop(Index) : FString());
	return true;
}

const FEngineVersion& FEngineVersion::Current()
{
	static const FEngineVersion Version(5, 7, 0, 0, TEXT("++UE5+Release-5.7"));
	return Version;
}

FArchive& operator<<(FArchive& Ar, FEngineVersion& Version)
{
	return Ar << Version.Major << Version.Minor << Version.Patch << Version.Changelist << Version.Branch;
}
