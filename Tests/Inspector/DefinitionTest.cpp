#include "InspectorFixture.h"

#include "UObject/Class.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UnrealType.h"

#include <map>

namespace
{
using UECodeGen_Private::EPropertyGenKind;

class FDefinitionTest : public FInspectorTest
{
protected:
	/** The definition of the export with that path. */
	static TSharedPtr<FJsonObject> GetDefinition(const TSharedPtr<FJsonObject>& Document, const TCHAR* Path)
	{
		const TSharedPtr<FJsonObject> Export = FindObject(Document, TEXT("exports"), TEXT("path"), Path);
		const TSharedPtr<FJsonObject>* Definition = nullptr;
		return Export->TryGetObjectField(TEXT("definition"), Definition) ? *Definition : TSharedPtr<FJsonObject>(MakeShared<FJsonObject>());
	}

	/** Saves types in a new package and inspects the file. */
	static TSharedPtr<FJsonObject> SaveAndInspect(UPackage* Package, std::initializer_list<UObject*> Types)
	{
		FLinkerSave Saver(Package, TEXT("types"));
		for (UObject* const Type : Types)
		{
			Saver.AddExport(Type);
		}
		FString Error;
		EXPECT_TRUE(Saver.WriteExports(Error)) << TCHAR_TO_UTF8(*Error);
		const TArray<uint8> File = Saver.MakeFile(Error);
		TArray<FString> Errors;
		const TSharedPtr<FJsonObject> Document = Inspect(FBytes(File.GetData(), File.GetData() + File.Num()), Errors);
		EXPECT_TRUE(Document && Errors.IsEmpty()) << (Errors.IsEmpty() ? "" : TCHAR_TO_UTF8(*Errors[0]));
		return Document;
	}
};

TEST_F(FDefinitionTest, DefinitionsInEverySampleAreReadToTheirLastByte)
{
	std::map<std::string, int32> NumByClass;
	for (const std::filesystem::path& Sample : ListSamples())
	{
		TArray<FString> Errors;
		const TSharedPtr<FJsonObject> Document = Inspect(ReadFile(Sample), Errors);
		ASSERT_TRUE(Document && Errors.IsEmpty()) << Sample;
		for (const TSharedPtr<FJsonObject>& Export : GetObjects(*Document, TEXT("exports")))
		{
			if (Export->HasField(TEXT("definition")))
			{
				++NumByClass[TCHAR_TO_UTF8(*Export->GetStringField(TEXT("class")))];
				EXPECT_EQ(Export->GetNumberField(TEXT("native_size")), 0) << Sample << TCHAR_TO_UTF8(*Export->GetStringField(TEXT("path")));
			}
		}
	}
	EXPECT_GT(NumByClass["/Script/CoreUObject.Function"], 0);
	EXPECT_GT(NumByClass["/Script/Engine.BlueprintGeneratedClass"], 0);
	EXPECT_GT(NumByClass["/Script/UMG.WidgetBlueprintGeneratedClass"], 0);
	EXPECT_GT(NumByClass["/Script/CoreUObject.SoftClassProperty"], 0);
	EXPECT_GT(NumByClass["/Script/CoreUObject.BoolProperty"], 0);
}

TEST_F(FDefinitionTest, AClassHasItsMembersAndFunctions)
{
	const TSharedPtr<FJsonObject> Document = InspectSample("UE56/SimpleRefs/SimpleRefsRoot.uasset");
	const FString Path = TEXT("/Game/SimpleRefs/SimpleRefsRoot.SimpleRefsRoot_C");
	const TSharedPtr<FJsonObject> Class = GetDefinition(Document, *Path);
	EXPECT_EQ(Class->GetStringField(TEXT("super")), FString(TEXT("/Script/CoreUObject.Object")));
	EXPECT_EQ(Class->GetStringField(TEXT("default_object")), FString(TEXT("/Game/SimpleRefs/SimpleRefsRoot.Default__SimpleRefsRoot_C")));
	const TSharedPtr<FJsonObject>* Functions = nullptr;
	ASSERT_TRUE(Class->TryGetObjectField(TEXT("functions"), Functions));
	EXPECT_EQ((*Functions)->GetStringField(TEXT("TestEvent")), Path + TEXT(":TestEvent"));
	const FObjects Members = GetObjects(*Class, TEXT("members"));
	ASSERT_EQ(Members.size(), 3u);
	EXPECT_EQ(Members[1]->GetStringField(TEXT("name")), FString(TEXT("VarHard")));
	EXPECT_EQ(Members[1]->GetStringField(TEXT("type")), FString(TEXT("ClassProperty")));
	EXPECT_EQ(Members[1]->GetStringField(TEXT("meta_class")), FString(TEXT("/Script/CoreUObject.Object")));
	const TSharedPtr<FJsonObject> Function = GetDefinition(Document, *(Path + TEXT(":ExecuteUbergraph_SimpleRefsRoot")));
	const FObjects Parameters = GetObjects(*Function, TEXT("members"));
	ASSERT_EQ(Parameters.size(), 1u);
	EXPECT_EQ(Parameters[0]->GetStringField(TEXT("name")), FString(TEXT("EntryPoint")));
	EXPECT_TRUE(Function->HasField(TEXT("script")));
}

TEST_F(FDefinitionTest, PropertiesThatWereObjectsHaveTheirTypes)
{
	const TSharedPtr<FJsonObject> Document = InspectSample("UE420/SimpleRefs/SimpleRefsRoot.uasset");
	const TSharedPtr<FJsonObject> Variable = GetDefinition(Document, TEXT("None.SimpleRefsRoot_C:VarHard"));
	EXPECT_EQ(Variable->GetStringField(TEXT("meta_class")), FString(TEXT("/Script/CoreUObject.Object")));
	EXPECT_EQ(Variable->GetStringField(TEXT("property_flags")), FString(TEXT("0x10005")));
	const TSharedPtr<FJsonObject> Frame = GetDefinition(Document, TEXT("None.SimpleRefsRoot_C:UberGraphFrame"));
	EXPECT_EQ(Frame->GetStringField(TEXT("struct")), FString(TEXT("/Script/Engine.PointerToUberGraphFrame")));
}

TEST_F(FDefinitionTest, EnumsAndStructsHaveTheirEnumeratorsAndMembers)
{
	UPackage* const Package = CreatePackage(TEXT("/Inspected/Types"));
	UEnum* const Enum = NewObject<UEnum>(Package, TEXT("Weather"), RF_Public | RF_Standalone);
	Enum->SetEnums({{FName(TEXT("Weather::Rain")), 1}, {FName(TEXT("Weather::Snow")), int64(1) << 40}}, UEnum::ECppForm::EnumClass);
	UScriptStruct* const Struct = NewObject<UScriptStruct>(Package, TEXT("Day"), RF_Public | RF_Standalone);
	FPropertyDescription Key;
	Key.Kind = EPropertyGenKind::Name;
	Key.Name = TEXT("Hours");
	FPropertyDescription Value;
	Value.Kind = EPropertyGenKind::Double;
	Value.Name = TEXT("Hours");
	FPropertyDescription Map;
	Map.Kind = EPropertyGenKind::Map;
	Map.Name = TEXT("Hours");
	Map.Inner = MakeShared<FPropertyDescription>(Key);
	Map.Value = MakeShared<FPropertyDescription>(Value);
	Struct->ChildProperties = ConstructPropertyFromDescription(Struct, Map);
	Struct->StaticLink(true);

	const TSharedPtr<FJsonObject> Document = SaveAndInspect(Package, {Enum, Struct});
	const FObjects Enumerators = GetObjects(*GetDefinition(Document, TEXT("/Inspected/Types.Weather")), TEXT("enumerators"));
	ASSERT_GE(Enumerators.size(), 2u);
	EXPECT_EQ(Enumerators[0]->GetStringField(TEXT("name")), FString(TEXT("Weather::Rain")));
	EXPECT_EQ(Enumerators[1]->GetNumberField(TEXT("value")), double(int64(1) << 40));
	const FObjects Members = GetObjects(*GetDefinition(Document, TEXT("/Inspected/Types.Day")), TEXT("members"));
	ASSERT_EQ(Members.size(), 1u);
	EXPECT_EQ(Members[0]->GetStringField(TEXT("type")), FString(TEXT("MapProperty")));
	const TSharedPtr<FJsonObject>* OfValue = nullptr;
	ASSERT_TRUE(Members[0]->TryGetObjectField(TEXT("value"), OfValue));
	EXPECT_EQ((*OfValue)->GetStringField(TEXT("type")), FString(TEXT("DoubleProperty")));
	for (const TSharedPtr<FJsonObject>& Export : GetObjects(*Document, TEXT("exports")))
	{
		EXPECT_EQ(Export->GetNumberField(TEXT("native_size")), 0);
	}
}

TEST_F(FDefinitionTest, PathsOfAChainWithoutEndAreToldByTheirInnerPart)
{
	constexpr int32 NumObjects = 1500;
	constexpr int32 MaxPathLength = 6000;
	FString LongName;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		LongName += TEXT("Long");
	}
	UPackage* const Package = CreatePackage(TEXT("/Inspected/Chain"));
	UObject* Outer = Package;
	for (int32 Index = 0; Index < NumObjects; ++Index)
	{
		Outer = NewObject<UEnum>(Outer, FName(*LongName, Index + 1));
	}
	const FObjects Exports = GetObjects(*SaveAndInspect(Package, {Outer}), TEXT("exports"));
	ASSERT_EQ(Exports.size(), size_t(NumObjects));
	for (const TSharedPtr<FJsonObject>& Export : Exports)
	{
		ASSERT_LT(Export->GetStringField(TEXT("path")).Len(), MaxPathLength);
	}
	const FString Innermost = FString::Printf(TEXT(".%s_%d"), *LongName, NumObjects - 1);
	EXPECT_TRUE(Exports.back()->GetStringField(TEXT("path")).EndsWith(Innermost));
}

TEST_F(FDefinitionTest, ADamagedDefinitionIsToldWithItsOffset)
{
	FBytes Bytes = ReadFile(GetSamples() / "UE56/SimpleRefs/SimpleRefsRoot.uasset");
	TArray<FString> Errors;
	const FString Path = TEXT("/Game/SimpleRefs/SimpleRefsRoot.SimpleRefsRoot_C:TestEvent");
	const TSharedPtr<FJsonObject> Function = FindObject(Inspect(Bytes, Errors), TEXT("exports"), TEXT("path"), Path);
	// Behind the control byte, the name that ends the properties and the word about a GUID: the function's super.
	const int64 Offset = int64(Function->GetNumberField(TEXT("offset"))) + 1 + 8 + 4;
	Bytes[size_t(Offset) + 3] = 0x7f;
	ASSERT_TRUE(Inspect(Bytes, Errors));
	ASSERT_EQ(Errors.Num(), 1);
	const FString Told = FString::Printf(TEXT("are damaged at offset %lld"), static_cast<long long>(Offset));
	EXPECT_TRUE(Errors[0].EndsWith(Told)) << TCHAR_TO_UTF8(*Errors[0]);
}
}
