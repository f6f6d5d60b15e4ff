#include "Internationalization/TextData.h"

#include <algorithm>

using UE::Core::Private::FArgumentList;
using UE::Core::Private::FDateTimeHistory;
using UE::Core::Private::FNumberHistory;
using UE::Core::Private::FTextData;

namespace
{
bool AreIdentical(FEmptyVariantState, FEmptyVariantState, ETextIdenticalModeFlags)
{
	return true;
}

bool AreIdentical(ETextTransform Left, ETextTransform Right, ETextIdenticalModeFlags)
{
	return Left == Right;
}

bool AreIdentical(const FNumberHistory& Left, const FNumberHistory& Right, ETextIdenticalModeFlags CompareFlags)
{
	return Left.Value.IdenticalTo(Right.Value, CompareFlags) && Left.Options == Right.Options &&
		Left.CurrencyCode.Equals(Right.CurrencyCode) && Left.CultureName.Equals(Right.CultureName);
}

bool AreIdentical(const FDateTimeHistory& Left, const FDateTimeHistory& Right, ETextIdenticalModeFlags)
{
	return Left.Value == Right.Value && Left.DateStyle == Right.DateStyle && Left.TimeStyle == Right.TimeStyle &&
		Left.TimeZone.Equals(Right.TimeZone) && Left.CultureName.Equals(Right.CultureName);
}

bool AreIdentical(const FFormatArgumentValue& Left, const FFormatArgumentValue& Right, ETextIdenticalModeFlags CompareFlags)
{
	return Left.IdenticalTo(Right, CompareFlags);
}

bool AreIdentical(const TPair<FString, FFormatArgumentValue>& Left, const TPair<FString, FFormatArgumentValue>& Right,
	ETextIdenticalModeFlags CompareFlags)
{
	return Left.Key.Equals(Right.Key) && Left.Value.IdenticalTo(Right.Value, CompareFlags);
}

template <typename ElementType>
bool AreIdentical(const TArray<ElementType>& Left, const TArray<ElementType>& Right, ETextIdenticalModeFlags CompareFlags)
{
	return std::equal(Left.begin(), Left.end(), Right.begin(), Right.end(), [CompareFlags](const ElementType& A, const ElementType& B)
		{ return AreIdentical(A, B, CompareFlags); });
}

bool AreIdentical(const FFormatNamedArguments& Left, const FFormatNamedArguments& Right, ETextIdenticalModeFlags CompareFlags)
{
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (const TPair<FString, FFormatArgumentValue>& Pair : Left)
	{
		const FFormatArgumentValue* const Other = Right.Find(Pair.Key);
		if (Other == nullptr || !Pair.Value.IdenticalTo(*Other, CompareFlags))
		{
			return false;
		}
	}
	return true;
}

FString FormatArguments(const FString& Pattern, const FArgumentList& Arguments)
{
	FFormatNamedArguments Named;
	for (const TPair<FString, FFormatArgumentValue>& Argument : Arguments)
	{
		Named.Add(Argument.Key, Argument.Value);
	}
	return UE::Core::Private::FormatPattern(Pattern, Named, {});
}

/** For a text without parts, what it displays already, which is taken from it. */
FString BuildDisplayString(FTextData& Data)
{
	switch (Data.Type)
	{
		case ETextHistoryType::NamedFormat:
			return UE::Core::Private::FormatPattern(Data.Source.ToString(), Data.History.Get<FFormatNamedArguments>(), {});
		case ETextHistoryType::OrderedFormat:
			return UE::Core::Private::FormatPattern(Data.Source.ToString(), {}, Data.History.Get<FFormatOrderedArguments>());
		case ETextHistoryType::ArgumentFormat:
			return FormatArguments(Data.Source.ToString(), Data.History.Get<FArgumentList>());
		case ETextHistoryType::AsNumber:
		case ETextHistoryType::AsPercent:
		case ETextHistoryType::AsCurrency:
			return UE::Core::Private::FormatNumberOfKind(Data.Type, Data.History.Get<FNumberHistory>());
		case ETextHistoryType::AsDate:
		case ETextHistoryType::AsTime:
		case ETextHistoryType::AsDateTime:
			return UE::Core::Private::FormatDateTimeOfKind(Data.Type, Data.History.Get<FDateTimeHistory>());
		case ETextHistoryType::Transform:
		{
			const FString& Source = Data.Source.ToString();
			return Data.History.Get<ETextTransform>() == ETextTransform::ToLower ? Source.ToLower() : Source.ToUpper();
		}
		case ETextHistoryType::StringTableEntry:
			return TEXT("<MISSING STRING TABLE ENTRY>");
		default:
			return MoveTemp(Data.Display);
	}
}
}

namespace UE::Core::Private
{
FText MakeTextOfParts(FTextData&& Parts, uint32 Flags)
{
	Parts.Display = BuildDisplayString(Parts);
	return MakeTextOfData(std::make_shared<const FTextData>(MoveTemp(Parts)), Flags);
}

bool ArePartsIdentical(const FTextData& Left, const FTextData& Right, ETextIdenticalModeFlags CompareFlags)
{
	if (Left.History.GetIndex() != Right.History.GetIndex() || !Left.Source.IdenticalTo(Right.Source, CompareFlags))
	{
		return false;
	}
	return Visit([&Right, CompareFlags]<typename PartsType>(const PartsType& Mine)
		{ return AreIdentical(Mine, Right.History.Get<PartsType>(), CompareFlags); },
		Left.History);
}
}
