#include "LumValueFixture.h"

#include <random>

namespace
{
/** JSON of any shape, with keys and texts that the property model knows among others. */
class FRandomJson
{
public:
	explicit FRandomJson(uint32 Seed)
		: Random(Seed)
	{
	}

	const TCHAR* Pick(TConstArrayView<const TCHAR*> Texts) { return Texts[Number(Texts.Num())]; }
	int32 Number(int32 Limit) { return static_cast<int32>(Random() % static_cast<uint32>(Limit)); }

	TSharedRef<FJsonValue> Make(int32 Depth)
	{
		static const TCHAR* const Texts[] = {TEXT(""), TEXT("1"), TEXT("-1"), TEXT("99999999999999999999"), TEXT("nan"), TEXT("True"),
			TEXT("Calm"), TEXT("LS_Left"), TEXT("(X=1,Y=2,Z=3)"), TEXT("(Depth=4,Label=\"x\")"), TEXT("(Inner=(Depth=1),Weight="),
			TEXT("((("), TEXT("\"\\\""), TEXT("ref|None"), TEXT("ref|"), TEXT("ref|/Script/LumTestTypes.LumPart"), TEXT("ref|/../x.:"),
			TEXT("NSLOCTEXT(\"a\", \"b\""), TEXT("\u00e4"), TEXT("(Id=3,Note=\"n\")"), TEXT("None")};
		switch (Number(Depth > 0 ? 8 : 5))
		{
			case 0:
				return MakeShared<FJsonValueNumber>(Number(1000) - 500);
			case 1:
				return MakeShared<FJsonValueBoolean>(Number(2) == 0);
			case 2:
				return MakeShared<FJsonValueNull>();
			case 3:
			case 4:
				return MakeShared<FJsonValueString>(Pick(Texts));
			case 5:
				return MakeShared<FJsonValueArray>(TArray<TSharedPtr<FJsonValue>>{Make(Depth - 1)});
			default:
				return MakeShared<FJsonValueObject>(MakeObject(Depth - 1));
		}
	}

private:
	TSharedRef<FJsonObject> MakeObject(int32 Depth)
	{
		static const TCHAR* const Keys[] = {TEXT("0"), TEXT("1"), TEXT("2"), TEXT("7"), TEXT("250"), TEXT("251"), TEXT("-1"), TEXT("01"),
			TEXT("key"), TEXT("value"), TEXT("X"), TEXT("Y"), TEXT("Inner"), TEXT("Depth"), TEXT("Label"), TEXT("List"), TEXT("Next"),
			TEXT("Strength"), TEXT("Id"), TEXT("Note"), TEXT(""), TEXT("Translation")};
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		for (int32 NumKeys = Number(4); NumKeys > 0; --NumKeys)
		{
			Object->SetField(Pick(Keys), Make(Depth));
		}
		return Object;
	}

	std::mt19937 Random;
};

class FLumImportRandomTest : public FLumValueTest
{
};

/** Whether sets and maps still find each of their elements, and no two are equal. */
void ExpectSoundContainers(const ULumThing& Thing)
{
	for (const FName& Name : Thing.Names)
	{
		EXPECT_TRUE(Thing.Names.Contains(Name));
	}
	TSet<int32> Ids;
	for (const FLumKey& Key : Thing.Keys)
	{
		EXPECT_TRUE(Thing.Keys.Contains(Key));
		EXPECT_FALSE(Ids.Contains(Key.Id));
		Ids.Add(Key.Id);
	}
	for (const auto& [Key, Value] : Thing.ByKey)
	{
		EXPECT_TRUE(Thing.ByKey.Contains(Key));
	}
	for (const auto& [Name, Count] : Thing.Counts)
	{
		EXPECT_EQ(Count, Thing.Counts[Name]);
	}
}

TEST_F(FLumImportRandomTest, AnyJsonIsTakenOrRefusedAndLeavesTheObjectSound)
{
	ULumPart* const Part = NewObject<ULumPart>(Thing);
	Part->Next = NewObject<ULumPart>(Part);
	Thing->Part = Part;
	Thing->Parts = {Part, nullptr};
	FRandomJson Random(20240229);
	int32 NumTaken = 0;
	constexpr int32 NumRounds = 20'000;
	const FLumUnrealObjectCompound Object(*Thing);
	TArray<TSharedRef<ILumProperty>> Properties;
	for (TFieldIterator<FProperty> It(Thing->GetClass()); It; ++It)
	{
		if (const TSharedPtr<ILumProperty> Property = Object.FindProperty(TVexelPropId(It->GetName())).GetValue())
		{
			Properties.Add(Property.ToSharedRef());
		}
	}
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const TSharedRef<ILumProperty>& Property = Properties[Random.Number(Properties.Num())];
		const TSharedRef<FJsonValue> Value = Random.Make(4);
		const TSharedPtr<ILumCompound> Compound =
			Property->AsCompoundProperty() ? Property->AsCompoundProperty()->GetCompound().GetValue() : nullptr;
		ILumCollectionCompound* const Collection = Compound ? Compound->AsCollectionCompound() : nullptr;
		const int32 Index = Random.Number(6) - 1;
		switch (Collection ? Random.Number(4) : 0)
		{
			case 0:
				NumTaken += Property->JsonImportValue(Context, Value).HasValue() ? 1 : 0;
				break;
			case 1:
				NumTaken += Collection->InsertAt(Context, Index, Value).HasValue() ? 1 : 0;
				break;
			case 2:
				NumTaken += Collection->RemoveAt(Index).HasValue() ? 1 : 0;
				break;
			default:
				NumTaken += Collection->Resize(Index).HasValue() ? 1 : 0;
				break;
		}
	}
	EXPECT_GT(NumTaken, NumRounds / 20);
	EXPECT_LT(NumTaken, NumRounds);
	ExpectSoundContainers(*Thing);
	EXPECT_TRUE(FMath::IsFinite(Thing->Double) && !Thing->Vector.ContainsNaN());
	EXPECT_NE("", Snapshot(*Thing));
}
}
