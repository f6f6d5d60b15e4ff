#include "Internationalization/Text.h"

#include "Internationalization/TextData.h"

using UE::Core::Private::FTextData;

namespace
{
FText MakeUnidentified(FString String, uint32 Flags)
{
	std::shared_ptr<FTextData> Data = std::make_shared<FTextData>();
	Data->Display = MoveTemp(String);
	return UE::Core::Private::MakeTextOfData(std::move(Data), Flags);
}

FText MakeTrimmed(const FText& Text, FStringView Trimmed)
{
	return Trimmed.Len() == Text.ToString().Len() ? Text : FText::FromString(FString(Trimmed));
}

FText MakeTransformed(const FText& Source, ETextTransform Transform)
{
	FTextData Parts;
	Parts.Type = ETextHistoryType::Transform;
	Parts.Source = Source;
	Parts.History.Set<ETextTransform>(Transform);
	return UE::Core::Private::MakeTextOfParts(MoveTemp(Parts));
}
}

namespace UE::Core::Private
{
FText MakeTextOfData(std::shared_ptr<const FTextData> Data, uint32 Flags)
{
	return FText(std::move(Data), Flags);
}

FText MakeBaseText(const FString& Namespace, const FString& Key, FString Source, uint32 Flags)
{
	std::shared_ptr<FTextData> Data = std::make_shared<FTextData>();
	Data->Type = ETextHistoryType::Base;
	Data->Display = MoveTemp(Source);
	Data->Namespace = Namespace;
	Data->Key = Key;
	return MakeTextOfData(std::move(Data), Flags);
}

FText MakeLocalizedText(const TCHAR* Text, const TCHAR* Namespace, const TCHAR* Key)
{
	return MakeBaseText(Namespace, Key, Text, ETextFlag::Immutable);
}
}

FText::FText()
{
	static const std::shared_ptr<const FTextData> EmptyData = std::make_shared<const FTextData>();
	Data = EmptyData;
}

const FText& FText::GetEmpty()
{
	static const FText* const Empty = new FText();
	return *Empty;
}

FText FText::FromString(const FString& String)
{
	return MakeUnidentified(String, ETextFlag::InitializedFromString);
}

FText FText::FromString(FString&& String)
{
	return MakeUnidentified(MoveTemp(String), ETextFlag::InitializedFromString);
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return MakeUnidentified(String, ETextFlag::CultureInvariant);
}

FText FText::AsCultureInvariant(FString&& String)
{
	return MakeUnidentified(MoveTemp(String), ETextFlag::CultureInvariant);
}

FText FText::AsCultureInvariant(FText Text)
{
	Text.Flags |= ETextFlag::CultureInvariant;
	return Text;
}

FText FText::FromNamespaceKeySource(const FString& Namespace, const FString& Key, const FString& Source)
{
	return UE::Core::Private::MakeBaseText(Namespace, Key, Source);
}

FText FText::FromStringTable(const FName& TableId, const FString& Key)
{
	FTextData Parts;
	Parts.Type = ETextHistoryType::StringTableEntry;
	Parts.TableId = TableId;
	Parts.Key = Key;
	return UE::Core::Private::MakeTextOfParts(MoveTemp(Parts));
}

FText FText::ChangeKey(const FTextKey& Namespace, const FTextKey& Key, const FText& Text)
{
	return UE::Core::Private::MakeBaseText(Namespace.ToString(), Key.ToString(), Text.BuildSourceString());
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Texts)
{
	FString Result;
	for (int32 Index = 0; Index < Texts.Num(); ++Index)
	{
		Result += Index > 0 ? FStringView(Delimiter.ToString()) : FStringView();
		Result += Texts[Index].ToString();
	}
	return FromString(MoveTemp(Result));
}

FText FText::TrimPreceding(const FText& Text)
{
	return MakeTrimmed(Text, FStringView(Text.ToString()).TrimStart());
}

FText FText::TrimTrailing(const FText& Text)
{
	return MakeTrimmed(Text, FStringView(Text.ToString()).TrimEnd());
}

FText FText::TrimPrecedingAndTrailing(const FText& Text)
{
	return MakeTrimmed(Text, FStringView(Text.ToString()).TrimStartAndEnd());
}

const FString& FText::ToString() const
{
	return Data->Display;
}

FString FText::BuildSourceString() const
{
	return Data->Display;
}

bool FText::IsEmptyOrWhitespace() const
{
	return FStringView(ToString()).TrimStart().IsEmpty();
}

FText FText::ToLower() const
{
	return MakeTransformed(*this, ETextTransform::ToLower);
}

FText FText::ToUpper() const
{
	return MakeTransformed(*this, ETextTransform::ToUpper);
}

int32 FText::CompareTo(const FText& Other, ETextComparisonLevel Level) const
{
	// Below the third level, letters that differ in case alone are the same.
	const bool bIgnoreCase = Level == ETextComparisonLevel::Primary || Level == ETextComparisonLevel::Secondary;
	return ToString().Compare(Other.ToString(), bIgnoreCase ? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive);
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase);
}

bool FText::IdenticalTo(const FText& Other, ETextIdenticalModeFlags CompareFlags) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	const FTextData& Mine = *Data;
	const FTextData& Theirs = *Other.Data;
	const bool bBothInvariant = Mine.Type == ETextHistoryType::None && Theirs.Type == ETextHistoryType::None;
	if (bBothInvariant)
	{
		const bool bLexical = EnumHasAnyFlags(CompareFlags, ETextIdenticalModeFlags::LexicalCompareInvariants);
		const bool bBothEmpty = Mine.Display.IsEmpty() && Theirs.Display.IsEmpty();
		return bBothEmpty || (bLexical && Mine.Display.Equals(Theirs.Display));
	}
	if (Mine.Type != Theirs.Type)
	{
		return false;
	}
	switch (Mine.Type)
	{
		case ETextHistoryType::Base:
			return !Mine.Key.IsEmpty() && Mine.Key.Equals(Theirs.Key) && Mine.Namespace.Equals(Theirs.Namespace) &&
				Mine.Display.Equals(Theirs.Display);
		case ETextHistoryType::StringTableEntry:
			return Mine.TableId == Theirs.TableId && Mine.Key.Equals(Theirs.Key);
		default:
			return EnumHasAnyFlags(CompareFlags, ETextIdenticalModeFlags::DeepCompare) && Mine.Display.Equals(Theirs.Display) &&
				UE::Core::Private::ArePartsIdentical(Mine, Theirs, CompareFlags);
	}
}

bool FText::IsCultureInvariant() const
{
	return (Flags & ETextFlag::CultureInvariant) != 0;
}

bool FText::IsTransient() const
{
	return (Flags & ETextFlag::Transient) != 0;
}

bool FText::IsInitializedFromString() const
{
	return (Flags & ETextFlag::InitializedFromString) != 0;
}

bool FText::IsFromStringTable() const
{
	return Data->Type == ETextHistoryType::StringTableEntry;
}

bool FText::ShouldGatherForLocalization() const
{
	const bool bHasIdentity = Data->Type == ETextHistoryType::Base && !Data->Key.IsEmpty();
	return bHasIdentity && (Flags & (ETextFlag::CultureInvariant | ETextFlag::Transient)) == 0 && !IsEmptyOrWhitespace();
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data->Type == ETextHistoryType::Base ? TOptional<FString>(Text.Data->Namespace) : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data->Type == ETextHistoryType::Base ? TOptional<FString>(Text.Data->Key) : TOptional<FString>();
}

FTextId FTextInspector::GetTextId(const FText& Text)
{
	return Text.Data->Type == ETextHistoryType::Base ? FTextId(Text.Data->Namespace, Text.Data->Key) : FTextId();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	const ETextHistoryType Type = Text.Data->Type;
	return Type == ETextHistoryType::Base || Type == ETextHistoryType::None ? &Text.Data->Display : nullptr;
}

bool FTextInspector::GetTableIdAndKey(const FText& Text, FName& OutTableId, FString& OutKey)
{
	if (!Text.IsFromStringTable())
	{
		return false;
	}
	OutTableId = Text.Data->TableId;
	OutKey = Text.Data->Key;
	return true;
}
