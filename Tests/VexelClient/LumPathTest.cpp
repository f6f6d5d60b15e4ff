#include "EditorFixture.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "Lum/LumPropertyCollector.h"
#include "LumTestTypes.h"

namespace
{
/** A property "in" that leads to its own compound again, and a property "leaf" that leads nowhere. */
class FEndlessCompound : public ILumCompound
{
public:
	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override { return TVexelPropTypeId(TEXT("endless")); }

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;
};

template <typename InterfaceType>
class TNamedProperty : public InterfaceType
{
public:
	explicit TNamedProperty(const TCHAR* InName)
		: Name(InName)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return TVexelPropId(Name); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return TVexelPropTypeId(TEXT("endless")); }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return TVexelPropTypeId(TEXT("endless")); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return CPF_None; }
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext&) const override
	{
		return MakeShared<FJsonValueString>(TEXT(""));
	}

private:
	const TCHAR* Name;
};

class FEndlessProperty : public TNamedProperty<ILumCompoundProperty>
{
public:
	using TNamedProperty::TNamedProperty;
	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override { return MakeShared<FEndlessCompound>(); }
};

/** Does not know where it leads. */
class FBrokenProperty : public TNamedProperty<ILumCompoundProperty>
{
public:
	using TNamedProperty::TNamedProperty;
	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override { return VEXEL_ERROR(FLumError_Read, "broken"); }
};

TVexelExpected<void> FEndlessCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(Collector.Property(MakeShared<FEndlessProperty>(TEXT("in"))));
	VEXEL_TRY_VOID(Collector.Property(MakeShared<FBrokenProperty>(TEXT("broken"))));
	return Collector.Property(MakeShared<TNamedProperty<ILumProperty>>(TEXT("leaf")));
}

FString MakePath(int32 NumSegments)
{
	FString Path = TEXT("in");
	for (int32 Index = 1; Index < NumSegments; ++Index)
	{
		Path += TEXT(".in");
	}
	return Path;
}

class FLumPathTest : public FEditorTest
{
protected:
	std::string Resolve(const FString& Path)
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Result = FLumHelper::CompoundPathResolve(MakeShared<FEndlessCompound>(), Path);
		return Result.HasError() ? TCHAR_TO_UTF8(*Result.GetError().GetMessage()) : "found";
	}
};

TEST_F(FLumPathTest, PathOf256SegmentsResolvesAndALongerOneDoesNot)
{
	EXPECT_EQ("found", Resolve(MakePath(256)));
	const FString TooLong = MakePath(257);
	EXPECT_EQ("Exceeded maximum segments (256) while resolving path '" + std::string(TCHAR_TO_UTF8(*TooLong)) +
			"'\nwhile resolving path '" + TCHAR_TO_UTF8(*TooLong) + "'",
		Resolve(TooLong));
}

TEST_F(FLumPathTest, FailureSaysWhichSegment)
{
	EXPECT_EQ("Property 'leaf' is not a compound property\nwhile resolving path 'in.leaf.in'", Resolve(TEXT("in.leaf.in")));
	EXPECT_EQ("Property 'out' not found in compound\nwhile resolving segment 'out'\nwhile resolving path 'in.out'", Resolve(TEXT("in.out")));
	EXPECT_EQ("Property '' not found in compound\nwhile resolving segment ''\nwhile resolving path 'in..in'", Resolve(TEXT("in..in")));
	EXPECT_EQ("broken\nwhile getting compound for property 'broken'\nwhile resolving path 'in.broken.in'", Resolve(TEXT("in.broken.in")));
}

TEST_F(FLumPathTest, WayLeadsThroughValuesOfEachKind)
{
	ULumThing* const Thing = NewObject<ULumThing>();
	Thing->Part = NewObject<ULumPart>(Thing);
	Thing->Structs.Add(TEXT("a"), FLumOuter());
	Thing->Inners.SetNum(2);
	const auto ResolveIn = [Thing](const FString& Path) -> std::string
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Result =
			FLumHelper::CompoundPathResolve(MakeShared<FLumUnrealObjectCompound>(*Thing), Path);
		const FString Text = Result.HasError() ? Result.GetError().GetMessage() : Result.GetValue()->GetPropId().GetValue().ToString();
		return TCHAR_TO_UTF8(*Text.Replace(TEXT("\n"), TEXT(", ")));
	};
	EXPECT_EQ("Depth", ResolveIn(TEXT("Structs.0.value.Inner.Depth")));
	EXPECT_EQ("Label", ResolveIn(TEXT("inners.1.label")));
	EXPECT_EQ("Strength", ResolveIn(TEXT("Part.Strength")));
	EXPECT_EQ("Property 'Next' does not contain a valid compound, while resolving path 'Part.Next.Strength'",
		ResolveIn(TEXT("Part.Next.Strength")));
	EXPECT_EQ("Property 'Depth' is not a compound property, while resolving path 'Struct.Inner.Depth.Depth'",
		ResolveIn(TEXT("Struct.Inner.Depth.Depth")));
	EXPECT_EQ("Property '2' not found in compound, while resolving segment '2', while resolving path 'Inners.2.Depth'",
		ResolveIn(TEXT("Inners.2.Depth")));
	// No engine name is as long.
	const FString Long = FString::ChrN(3000, TEXT('x'));
	EXPECT_EQ(0u, ResolveIn(Long + TEXT(".Depth")).find("Property 'xxx"));
	EXPECT_EQ(0u, ResolveIn(TEXT("Struct.") + Long).find("Property 'xxx"));
}

TEST_F(FLumPathTest, ReferenceStringCarriesAPath)
{
	EXPECT_EQ(FString(), FLumHelper::ParseReferenceString(TEXT("ref|None")).GetValue());
	EXPECT_EQ(FString(TEXT("/Game/A.A")), FLumHelper::ParseReferenceString(TEXT("ref|/Game/A.A")).GetValue());
	const TVexelExpected<FString> Bare = FLumHelper::ParseReferenceString(TEXT("None"));
	ASSERT_TRUE(Bare.HasError());
	EXPECT_TRUE(Bare.GetError().IsA<FLumError_Read>());
	EXPECT_EQ(FString(TEXT("Invalid reference string")), Bare.GetError().GetMessage());
}

TEST_F(FLumPathTest, NumericKeysAreSortedAndOthersRefused)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	for (const TCHAR* const Key : {TEXT("10"), TEXT("2"), TEXT("0")})
	{
		Object->SetBoolField(Key, true);
	}
	EXPECT_EQ((TArray<int32>{0, 2, 10}), FLumHelper::GetSortedNumericKeys(Object).GetValue());
	for (const TCHAR* const Key : {TEXT("x"), TEXT("1.5"), TEXT("-1"), TEXT(""), TEXT("99999999999")})
	{
		const TSharedRef<FJsonObject> Bad = MakeShared<FJsonObject>();
		Bad->SetBoolField(Key, true);
		const TVexelExpected<TArray<int32>> Keys = FLumHelper::GetSortedNumericKeys(Bad);
		ASSERT_TRUE(Keys.HasError()) << TCHAR_TO_UTF8(Key);
		EXPECT_EQ(FString::Printf(TEXT("Invalid numeric key: '%s'"), Key), Keys.GetError().GetMessage());
	}
}

TEST_F(FLumPathTest, ContainerTypeNeedsPlainElements)
{
	const TVexelPropTypeId Name(TEXT("name"));
	const TVexelPropTypeId Array(TEXT("array|name"));
	EXPECT_EQ(Array, FLumHelper::CreateContainerType(EPinContainerType::Array, Name, TVexelPropTypeId()).GetValue());
	EXPECT_EQ(TVexelPropTypeId(TEXT("map|name|name")), FLumHelper::CreateContainerType(EPinContainerType::Map, Name, Name).GetValue());
	const auto Fail = [](EPinContainerType Container, const TVexelPropTypeId& Element, const TVexelPropTypeId& Value)
	{
		return std::string(TCHAR_TO_UTF8(*FLumHelper::CreateContainerType(Container, Element, Value).GetError().GetMessage()));
	};
	EXPECT_EQ("Property type is not valid", Fail(EPinContainerType::Set, TVexelPropTypeId(), Name));
	EXPECT_EQ("Property type cannot be a container type", Fail(EPinContainerType::Array, Array, Name));
	EXPECT_EQ("Terminal property type is not valid for map", Fail(EPinContainerType::Map, Name, Array));
}
}
