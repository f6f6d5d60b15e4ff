#include "LogCapture.h"
#include "ObjectTestSupport.h"

#include "HAL/FileManager.h"
#include "Misc/Guid.h"
#include "UObject/LinkerLoad.h"
#include "UObject/SavePackage.h"
#include "UObject/ScriptHeaderLoader.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <string_view>

using namespace UE::CoreUObject;

namespace
{
FScriptHeaderSource MakeSource(const TCHAR* Path, std::string_view Text)
{
	FScriptHeaderSource Source;
	Source.Path = Path;
	Source.Text.Append(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
	return Source;
}

constexpr std::string_view Headers = R"(// Package: /Script/SubobjectTest
UCLASS(DefaultToInstanced)
class USubPiece : public UObject
{
	GENERATED_BODY()
	UPROPERTY() int32 Size = 1;
	UPROPERTY() FString Label;
	UPROPERTY() TObjectPtr<USubPiece> Above;
	UPROPERTY(Transient) TObjectPtr<USubPiece> Neighbour;
	UPROPERTY() uint8 bIsEditorOnly : 1;
};
UCLASS()
class USubBigPiece : public USubPiece { GENERATED_BODY() UPROPERTY() int32 Extra = 7; };
UCLASS(Abstract)
class USubIdea : public USubPiece { GENERATED_BODY() };
UCLASS()
class USubPlan : public USubIdea { GENERATED_BODY() };
UCLASS()
class USubHouse : public UObject
{
	GENERATED_BODY()
	UPROPERTY() TObjectPtr<USubPiece> Floor;
	UPROPERTY() TObjectPtr<USubPiece> Main;
	UPROPERTY() TObjectPtr<USubPiece> Roof;
	UPROPERTY() TObjectPtr<USubPiece> Sign;
	UPROPERTY() TObjectPtr<USubPiece> Dream;
	UPROPERTY() TObjectPtr<USubPiece> Cloud;
	UPROPERTY() int32 Number;
};
UCLASS()
class USubTower : public USubHouse { GENERATED_BODY() UPROPERTY() TObjectPtr<USubBigPiece> Base; };
)";

constexpr std::string_view Table = R"(# Class | Members | Sub-object | Its class | Kind | Values

USubTower | Base | Floor0 | USubBigPiece | | Size = 9
USubTower |      | Sign0  | none         | |
USubTower |      | Dream0 | USubPlan | |
USubHouse | Floor Main | Floor0 | USubPiece | | Size = 4; Label = "ground"
USubHouse | Roof  | Roof0  | USubPiece | | Above = Floor0; Neighbour = Floor0; Size = 2
USubHouse | Sign  | Sign0  | USubPiece | editor | Above = Roof0
USubHouse | Dream | Dream0 | USubIdea  | |
USubHouse | Cloud | Cloud0 | USubPiece | optional | Above = Dream0
)";

/** Classes of which only declarations and a table of their sub-objects are known. */
class FDeclaredSubobjectTest : public FObjectTest
{
protected:
	void SetUp() override
	{
		FObjectTest::SetUp();
		static const bool bLoaded = []
		{
			EXPECT_EQ(LoadScriptHeaderSources({MakeSource(TEXT("Test.h"), Headers)}).Errors, TArray<FString>());
			EXPECT_EQ(LoadScriptSubobjects(MakeSource(TEXT("Table.txt"), Table)).Errors, TArray<FString>());
			return true;
		}();
		EXPECT_TRUE(bLoaded);
	}

	static UClass* GetClass(const TCHAR* Name) { return FindObject<UClass>(nullptr, *(FString(TEXT("/Script/SubobjectTest.")) + Name)); }
	static UObject* GetDefaults(const TCHAR* Name) { return GetClass(Name)->GetDefaultObject(); }
	static UObject* Get(const UObject* Object, const TCHAR* Member)
	{
		return FindFProperty<FObjectProperty>(Object->GetClass(), Member)->GetObjectPropertyValue_InContainer(Object);
	}
	static int32& Size(const UObject* Object, const TCHAR* Member = TEXT("Size"))
	{
		return *FindFProperty<FIntProperty>(Object->GetClass(), Member)->ContainerPtrToValuePtr<int32>(const_cast<UObject*>(Object));
	}
	static FString Label(const UObject* Object)
	{
		return *FindFProperty<FStrProperty>(Object->GetClass(), TEXT("Label"))->ContainerPtrToValuePtr<FString>(Object);
	}
	UClass* MakeChild(const TCHAR* Name, UClass* Super) const
	{
		UClass* const Class = NewObject<UClass>(Package, Name, RF_Public);
		Class->SetSuperStruct(Super);
		Class->ClassFlags |= CLASS_CompiledFromBlueprint;
		Class->Bind();
		Class->StaticLink(true);
		return Class;
	}
	FString MakeFilename() const
	{
		return FString(UTF8_TO_TCHAR(testing::TempDir().c_str())) + FGuid::NewGuid().ToString() + TEXT(".uasset");
	}
	/** Loads the file under a name of its own and removes it. The object that stands for the first one of the package. */
	UObject* Load(const FString& File) const
	{
		UPackage* const Other = CreatePackage(*(Package->GetName() + TEXT("Loaded")));
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(File, Other, Error);
		EXPECT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
		if (Linker)
		{
			Linker->LoadAllObjects();
		}
		IFileManager::Get().Delete(*File);
		return StaticFindObjectFast(nullptr, Other, TEXT("House"));
	}
	static int32 NumParts(UObject* Object)
	{
		TArray<UObject*> Parts;
		GetObjectsWithOuter(Object, Parts, true);
		return Parts.Num();
	}
	/** That the object's members hold parts of its own, made from the archetype's, and that these point at one another. */
	static void ExpectOwnParts(UObject* House, const UObject* Archetype)
	{
		EXPECT_EQ(House->GetArchetype(), Archetype);
		for (const TCHAR* const Member : {TEXT("Floor"), TEXT("Main"), TEXT("Roof"), TEXT("Sign"), TEXT("Cloud")})
		{
			const UObject* const Part = Get(House, Member);
			ASSERT_NE(Part, nullptr) << TCHAR_TO_UTF8(Member);
			EXPECT_EQ(Part->GetOuter(), House);
			EXPECT_TRUE(Part->IsDefaultSubobject());
			EXPECT_EQ(Part->GetArchetype(), Get(Archetype, Member));
		}
		EXPECT_EQ(Get(House, TEXT("Main")), Get(House, TEXT("Floor")));
		EXPECT_EQ(Get(Get(House, TEXT("Roof")), TEXT("Above")), Get(House, TEXT("Floor")));
		EXPECT_EQ(Get(Get(House, TEXT("Roof")), TEXT("Neighbour")), Get(House, TEXT("Floor")));
		EXPECT_EQ(Get(Get(House, TEXT("Sign")), TEXT("Above")), Get(House, TEXT("Roof")));
		EXPECT_EQ(NumParts(House), 4);
	}
};
}

TEST_F(FDeclaredSubobjectTest, DefaultObjectHasWhatTheConstructorMakes)
{
	UObject* const House = GetDefaults(TEXT("SubHouse"));
	const UObject* const Floor = Get(House, TEXT("Floor"));
	ASSERT_NE(Floor, nullptr);
	EXPECT_EQ(Floor->GetPathName(), TEXT("/Script/SubobjectTest.Default__SubHouse:Floor0"));
	EXPECT_TRUE(Floor->HasAllFlags(static_cast<EObjectFlags>(RF_DefaultSubObject | RF_ArchetypeObject | RF_Public)));
	EXPECT_EQ(Floor->GetArchetype(), Floor->GetClass()->GetDefaultObject());
	EXPECT_EQ(Size(Floor), 4);
	EXPECT_EQ(Label(Floor), TEXT("ground"));
	EXPECT_EQ(Get(House, TEXT("Main")), Floor);
	EXPECT_EQ(Get(Get(House, TEXT("Roof")), TEXT("Above")), Floor);
	const UObject* const Sign = Get(House, TEXT("Sign"));
	EXPECT_TRUE(CastField<FBoolProperty>(Sign->GetClass()->FindPropertyByName(TEXT("bIsEditorOnly")))->GetPropertyValue_InContainer(Sign));
	// Its class is abstract: only a derived class can make it.
	EXPECT_EQ(Get(House, TEXT("Dream")), nullptr);
	EXPECT_EQ(NumParts(House), 4);
}

TEST_F(FDeclaredSubobjectTest, DerivedClassReplacesAndLeavesOut)
{
	UObject* const Tower = GetDefaults(TEXT("SubTower"));
	const UObject* const Floor = Get(Tower, TEXT("Floor"));
	ASSERT_NE(Floor, nullptr);
	EXPECT_EQ(Floor->GetOuter(), Tower);
	EXPECT_EQ(Floor->GetClass(), GetClass(TEXT("SubBigPiece")));
	EXPECT_EQ(Get(Tower, TEXT("Base")), Floor);
	EXPECT_EQ(Get(Tower, TEXT("Main")), Floor);
	EXPECT_EQ(Size(Floor), 9);
	EXPECT_EQ(Size(Floor, TEXT("Extra")), 7);
	EXPECT_EQ(Label(Floor), TEXT("ground")) << "the super's constructor runs too";
	EXPECT_EQ(Get(Tower, TEXT("Sign")), nullptr);
	EXPECT_NE(Get(Tower, TEXT("Dream")), nullptr);
	EXPECT_EQ(Get(Get(Tower, TEXT("Cloud")), TEXT("Above")), Get(Tower, TEXT("Dream"))) << "which the super does not have";
	EXPECT_EQ(Get(Get(Tower, TEXT("Roof")), TEXT("Above")), Floor);
	EXPECT_EQ(NumParts(Tower), 4);
	UObject* const Instance = NewObject<UObject>(Package, GetClass(TEXT("SubTower")));
	EXPECT_EQ(Get(Instance, TEXT("Base"))->GetOuter(), Instance);
	EXPECT_EQ(Get(Instance, TEXT("Sign")), nullptr);
	EXPECT_EQ(Size(Get(Instance, TEXT("Floor"))), 9);
	EXPECT_EQ(NumParts(Instance), 4);
}

TEST_F(FDeclaredSubobjectTest, InstancesHaveTheirOwnWithTheArchetypesValues)
{
	UObject* const House = NewObject<UObject>(Package, GetClass(TEXT("SubHouse")), TEXT("House"));
	ExpectOwnParts(House, GetDefaults(TEXT("SubHouse")));
	EXPECT_EQ(Size(Get(House, TEXT("Floor"))), 4);
	Size(Get(House, TEXT("Floor"))) = 40;
	UObject* const FromTemplate = NewObject<UObject>(Package, House->GetClass(), TEXT("Copy"), RF_NoFlags, House);
	EXPECT_EQ(Size(Get(FromTemplate, TEXT("Floor"))), 40);
	EXPECT_EQ(Get(Get(FromTemplate, TEXT("Roof")), TEXT("Above")), Get(FromTemplate, TEXT("Floor")));
	EXPECT_EQ(Size(Get(GetDefaults(TEXT("SubHouse")), TEXT("Floor"))), 4);
}

TEST_F(FDeclaredSubobjectTest, BlueprintClassesFollowTheirParents)
{
	UClass* const Parent = MakeChild(TEXT("House_C"), GetClass(TEXT("SubHouse")));
	UObject* const ParentDefaults = Parent->GetDefaultObject();
	ExpectOwnParts(ParentDefaults, GetDefaults(TEXT("SubHouse")));
	Size(Get(ParentDefaults, TEXT("Roof"))) = 21;
	UClass* const Child = MakeChild(TEXT("Cottage_C"), Parent);
	const TStrongObjectPtr<UObject> Keep(Child);
	ExpectOwnParts(Child->GetDefaultObject(), ParentDefaults);
	EXPECT_EQ(Size(Get(Child->GetDefaultObject(), TEXT("Roof"))), 21);
	Size(Get(Child->GetDefaultObject(), TEXT("Roof"))) = 22;
	UObject* const Instance = NewObject<UObject>(Package, Child);
	ExpectOwnParts(Instance, Child->GetDefaultObject());
	EXPECT_EQ(Size(Get(Instance, TEXT("Roof"))), 22);
	EXPECT_EQ(Size(Get(ParentDefaults, TEXT("Roof"))), 21);
}

TEST_F(FDeclaredSubobjectTest, DuplicatesHaveTheirOwn)
{
	UObject* const House = NewObject<UObject>(Package, GetClass(TEXT("SubHouse")), TEXT("House"));
	Size(Get(House, TEXT("Sign"))) = 33;
	UObject* const Copy = DuplicateObject<UObject>(House, Package, TEXT("Copy"));
	ExpectOwnParts(Copy, GetDefaults(TEXT("SubHouse")));
	EXPECT_EQ(Size(Get(Copy, TEXT("Sign"))), 33);
}

TEST_F(FDeclaredSubobjectTest, AreWrittenAndReadBack)
{
	UObject* const House = NewObject<UObject>(Package, GetClass(TEXT("SubHouse")), TEXT("House"), RF_Public | RF_Standalone);
	Size(Get(House, TEXT("Roof"))) = 5;
	const FString File = MakeFilename();
	ASSERT_TRUE(UPackage::SavePackage(Package, House, *File, FSavePackageArgs()));
	// What the file does not say is the archetype's.
	const TGuardValue<int32> NewDefault(Size(Get(GetDefaults(TEXT("SubHouse")), TEXT("Floor"))), 6);
	UObject* const Loaded = Load(File);
	ASSERT_NE(Loaded, nullptr);
	ExpectOwnParts(Loaded, GetDefaults(TEXT("SubHouse")));
	EXPECT_EQ(Size(Get(Loaded, TEXT("Roof"))), 5);
	EXPECT_EQ(Size(Get(Loaded, TEXT("Floor"))), 6);
}

TEST_F(FDeclaredSubobjectTest, PartOfAnotherClassInAPackageTakesTheConstructorsPlace)
{
	UObject* const House = NewObject<UObject>(Package, GetClass(TEXT("SubHouse")), TEXT("House"), RF_Public | RF_Standalone);
	Get(House, TEXT("Floor"))->Rename(nullptr, GetTransientPackage(), REN_DontCreateRedirectors);
	UObject* const Cellar = NewObject<UObject>(House, GetClass(TEXT("SubBigPiece")), TEXT("Floor0"), RF_DefaultSubObject);
	for (UObject* const Holder : {House, Get(House, TEXT("Roof"))})
	{
		for (const TCHAR* const Member : {TEXT("Floor"), TEXT("Main"), TEXT("Above")})
		{
			if (const FObjectProperty* const Property = FindFProperty<FObjectProperty>(Holder->GetClass(), Member))
			{
				Property->SetObjectPropertyValue_InContainer(Holder, Cellar);
			}
		}
	}
	Size(Cellar, TEXT("Extra")) = 70;
	const FString File = MakeFilename();
	ASSERT_TRUE(UPackage::SavePackage(Package, House, *File, FSavePackageArgs()));
	FLogCapture Log;
	UObject* const Loaded = Load(File);
	ASSERT_NE(Loaded, nullptr);
	const UObject* const Floor = Get(Loaded, TEXT("Floor"));
	ASSERT_NE(Floor, nullptr);
	EXPECT_EQ(Floor->GetPathName(Loaded), TEXT("Floor0"));
	EXPECT_EQ(Floor->GetClass(), Cellar->GetClass());
	EXPECT_EQ(Size(Floor, TEXT("Extra")), 70);
	EXPECT_EQ(Get(Loaded, TEXT("Main")), Floor);
	EXPECT_EQ(Get(Get(Loaded, TEXT("Roof")), TEXT("Above")), Floor);
	EXPECT_EQ(NumParts(Loaded), 4);
	EXPECT_FALSE(Log.Contains("is in the way")) << Log.ToText();
}

TEST_F(FDeclaredSubobjectTest, LiveAsLongAsTheirOwner)
{
	const TStrongObjectPtr<UObject> House(NewObject<UObject>(Package, GetClass(TEXT("SubHouse"))));
	const TWeakObjectPtr<UObject> Floor(Get(House.Get(), TEXT("Floor")));
	const TWeakObjectPtr<UObject> LostFloor(Get(NewObject<UObject>(Package, GetClass(TEXT("SubHouse"))), TEXT("Floor")));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Floor.IsValid());
	EXPECT_FALSE(LostFloor.IsValid());
	ExpectOwnParts(House.Get(), GetDefaults(TEXT("SubHouse")));
}

TEST_F(FDeclaredSubobjectTest, DefaultObjectOfADeclaredClassIsFoundBeforeAnybodyMadeIt)
{
	ASSERT_EQ(LoadScriptHeaderSources({MakeSource(TEXT("Test.h"),
										  "// Package: /Script/SubobjectFound\nUCLASS()\nclass USubFound : public UObject { GENERATED_BODY() UPROPERTY() "
										  "TObjectPtr<USubPiece> Piece; };\n")})
				  .Errors,
		TArray<FString>());
	ASSERT_EQ(
		LoadScriptSubobjects(MakeSource(TEXT("Table.txt"), "USubFound | Piece | Piece0 | USubPiece | |\n")).Errors, TArray<FString>());
	const UClass* const Class = FindObject<UClass>(nullptr, TEXT("/Script/SubobjectFound.SubFound"));
	ASSERT_TRUE(Class && !Class->GetDefaultObject(false));
	const UObject* const Piece = StaticFindObject(nullptr, nullptr, TEXT("/Script/SubobjectFound.Default__SubFound:Piece0"));
	ASSERT_NE(Piece, nullptr);
	EXPECT_EQ(Piece, Get(Class->GetDefaultObject(false), TEXT("Piece")));
	EXPECT_EQ(StaticFindObject(UClass::StaticClass(), nullptr, TEXT("/Script/SubobjectFound.Default__SubFound")), nullptr);
	EXPECT_EQ(StaticFindObject(nullptr, nullptr, TEXT("/Script/SubobjectFound.Default__SubNothing")), nullptr);
}

TEST_F(FDeclaredSubobjectTest, MistakesInTheTableAreReportedAndTheRestIsMade)
{
	ASSERT_EQ(LoadScriptHeaderSources({MakeSource(TEXT("Test.h"),
										  "// Package: /Script/SubobjectMistakes\nUCLASS()\nclass USubWrong : public UObject { GENERATED_BODY() UPROPERTY() "
										  "TObjectPtr<USubBigPiece> Big; UPROPERTY() int32 Number; };\n"
										  "UCLASS()\nclass USubWorse : public USubWrong { GENERATED_BODY() };\n")})
				  .Errors,
		TArray<FString>());
	struct FCase
	{
		const char* Row;
		const TCHAR* Error;
	};
	const FCase Cases[] = {
		{"USubWrong | Big | Big0 | USubBigPiece", TEXT("a row is")},
		{"USubWrong | Big | Big0 | USubBigPiece | | | ", TEXT("a row is")},
		{"UNoSuch | Big | Big0 | USubBigPiece | |", TEXT("there is no class UNoSuch")},
		{"U | Big | Big0 | USubBigPiece | |", TEXT("there is no class U")},
		{"UReflectedThing | Part | Part | USubPiece | |", TEXT("UReflectedThing has a constructor")},
		{"USubWrong | Big | Big0 | UNoSuch | |", TEXT("there is no class UNoSuch")},
		{"USubWrong | Big | | USubBigPiece | |", TEXT("has no name")},
		{"USubWrong | Big | Big0 | USubBigPiece | needed |", TEXT("no kind 'needed'")},
		{"USubWrong | | Big0 | USubBigPiece | |", TEXT("Big0 needs a class, and a member")},
		{"USubWrong | Big | Big0 | none | |", TEXT("Big0 needs a class, and a member")},
		{"USubWrong | Small | Big0 | USubBigPiece | |", TEXT("no member Small that could hold Big0")},
		{"USubWrong | Number | Big0 | USubBigPiece | |", TEXT("no member Number that could hold Big0")},
		{"USubWrong | Big | Big0 | USubPiece | |", TEXT("no member Big that could hold Big0")},
		{"USubWrong | Big | Big0 | USubBigPiece | | Size = 5; Weight = 2", TEXT("does not take the value 'Weight = 2'")},
		{"USubWrong | Big | Big1 | USubBigPiece | | Size = many", TEXT("does not take the value 'Size = many'")},
		{"USubWrong | Big | Big2 | USubBigPiece | | Above = Big9", TEXT("does not take the value 'Above = Big9'")},
		{"USubWorse | | Big0 | none | |", TEXT("Big0 of the super cannot be left out")},
		{"USubWorse | | Big0 | USubPiece | |", TEXT("Big0 of the super cannot be a SubPiece")},
	};
	std::string Text;
	for (const FCase& Case : Cases)
	{
		Text += std::string(Case.Row) + "\r\n";
	}
	const TArray<FString> Errors = LoadScriptSubobjects(MakeSource(TEXT("Table.txt"), Text)).Errors;
	int32 Line = 0;
	for (const FCase& Case : Cases)
	{
		const FString Place = FString::Printf(TEXT("Table.txt:%d:1: error: "), ++Line);
		const int32 Num = Errors.FilterByPredicate([&Place, &Case](const FString& Error)
									{ return Error.StartsWith(Place) && Error.Contains(Case.Error); })
							  .Num();
		EXPECT_EQ(Num, 1) << Case.Row;
	}
	EXPECT_EQ(Errors.Num(), static_cast<int32>(std::size(Cases)));
	const UClass* const Worse = FindObject<UClass>(nullptr, TEXT("/Script/SubobjectMistakes.SubWorse"));
	const UObject* const Big = StaticFindObjectFast(nullptr, Worse->GetDefaultObject(), TEXT("Big0"));
	ASSERT_NE(Big, nullptr);
	EXPECT_EQ(Size(Big), 5);
}

TEST_F(FDeclaredSubobjectTest, TableThatComesAfterADefaultObjectIsRefused)
{
	GetDefaults(TEXT("SubPiece"));
	const TArray<FString> Errors =
		LoadScriptSubobjects(MakeSource(TEXT("Table.txt"), "USubPiece | Above | Floor7 | USubPiece | |\n")).Errors;
	ASSERT_EQ(Errors.Num(), 1);
	EXPECT_TRUE(Errors[0].Contains(TEXT("or a default object already"))) << TCHAR_TO_UTF8(*Errors[0]);
}

TEST_F(FDeclaredSubobjectTest, TableThatIsReadAgainChangesNothing)
{
	UObject* const House = GetDefaults(TEXT("SubHouse"));
	UObject* const Tower = GetDefaults(TEXT("SubTower"));
	EXPECT_EQ(LoadScriptSubobjects(MakeSource(TEXT("Table.txt"), Table)).Errors, TArray<FString>());
	ExpectOwnParts(NewObject<UObject>(Package, House->GetClass()), House);
	EXPECT_EQ(NumParts(NewObject<UObject>(Package, Tower->GetClass())), 4);
}
