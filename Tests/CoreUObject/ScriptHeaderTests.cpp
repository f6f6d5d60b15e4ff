#include "ObjectTestSupport.h"

#include "UObject/ScriptHeaderLoader.h"
#include "UObject/UnrealType.h"

#include <string>
#include <string_view>

using namespace UE::CoreUObject;

namespace
{
FScriptHeaderReport LoadTexts(const std::initializer_list<std::string_view> Texts)
{
	TArray<FScriptHeaderSource> Sources;
	for (const std::string_view Text : Texts)
	{
		FScriptHeaderSource& Source = Sources.AddDefaulted_GetRef();
		Source.Path = TEXT("Test.h");
		Source.Text.Append(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
	}
	return LoadScriptHeaderSources(Sources);
}

FScriptHeaderReport LoadText(const char* Text)
{
	return LoadTexts({Text});
}
}

using FScriptHeaders = FObjectTest;

TEST_F(FScriptHeaders, TypesAreLaidOutAtRunTime)
{
	const FScriptHeaderReport Report = LoadText(R"(// Package: /Script/HeaderTestA
#pragma once
UENUM(BlueprintType)
enum class EScriptShade : uint8 { Light, Dark UMETA(DisplayName = "Very Dark") };
USTRUCT(BlueprintType)
struct FScriptOuter { GENERATED_BODY() UPROPERTY() FScriptInner Inner; UPROPERTY() FString Label; };
USTRUCT(BlueprintType)
struct FScriptInner { GENERATED_BODY() UPROPERTY() bool bFlag; UPROPERTY() double Value; UPROPERTY() TArray<FScriptOuter> Nested; };
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FScriptChanged, EScriptShade, Shade);
UCLASS(BlueprintType)
class UScriptWidget : public UScriptBase
{
	GENERATED_BODY()
public:
	UPROPERTY(BlueprintAssignable) FScriptChanged OnChanged;
	UFUNCTION(BlueprintCallable, Category = "Test") int32 Count(const FScriptOuter& Outer, TSubclassOf<UObject> Class, bool& bFound) const;
};
UCLASS(Abstract)
class UScriptBase : public UReflectedThing { GENERATED_BODY() public: UPROPERTY() FName Tag; };
)");
	EXPECT_EQ(Report.Errors, TArray<FString>());
	UScriptStruct* const Outer = FindObject<UScriptStruct>(nullptr, TEXT("/Script/HeaderTestA.ScriptOuter"));
	ASSERT_NE(Outer, nullptr);
	const FProperty* const Label = Outer->FindPropertyByName(TEXT("Label"));
	ASSERT_NE(Label, nullptr);
	EXPECT_EQ(Label->GetOffset_ForInternal(), 32);
	EXPECT_EQ(Outer->GetStructureSize(), 48);

	UClass* const Widget = FindObject<UClass>(nullptr, TEXT("/Script/HeaderTestA.ScriptWidget"));
	ASSERT_NE(Widget, nullptr);
	EXPECT_TRUE(Widget->IsChildOf<UReflectedThing>());
	EXPECT_TRUE(Widget->HasAnyClassFlags(CLASS_Native));
	const UFunction* const Count = Widget->FindFunctionByName(TEXT("Count"));
	ASSERT_NE(Count, nullptr);
	EXPECT_TRUE(Count->HasAllFunctionFlags(FUNC_BlueprintCallable | FUNC_Const | FUNC_HasOutParms));
	EXPECT_EQ(Count->NumParms, 4);
	EXPECT_EQ(Count->GetMetaData(TEXT("Category")), TEXT("Test"));
	const FMulticastDelegateProperty* const OnChanged = FindFProperty<FMulticastDelegateProperty>(Widget, TEXT("OnChanged"));
	ASSERT_NE(OnChanged, nullptr);
	EXPECT_EQ(OnChanged->SignatureFunction->GetName(), TEXT("ScriptChanged__DelegateSignature"));

	UReflectedThing* const Instance = NewObject<UReflectedThing>(Package, Widget);
	ASSERT_NE(Instance, nullptr);
	EXPECT_EQ(Instance->Number, 7);
	EXPECT_EQ(Instance->Part->GetOuter(), Instance);
	*Widget->FindPropertyByName(TEXT("Tag"))->ContainerPtrToValuePtr<FName>(Instance) = TEXT("T");
}

TEST_F(FScriptHeaders, ErrorsNameFileAndLine)
{
	const FScriptHeaderReport Report = LoadText("// Package: /Script/HeaderTestB\n"
												"UCLASS()\n"
												"class UScriptGood : public UObject\n"
												"{\n"
												"\tGENERATED_BODY()\n"
												"\tUPROPERTY() FNoSuchType Value;\n"
												"\tUPROPERTY() int32 Other;\n"
												"};\n");
	ASSERT_EQ(Report.Errors.Num(), 1);
	EXPECT_TRUE(Report.Errors[0].StartsWith(TEXT("Test.h:6:"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
	const UClass* const Good = FindObject<UClass>(nullptr, TEXT("/Script/HeaderTestB.ScriptGood"));
	ASSERT_NE(Good, nullptr);
	EXPECT_NE(Good->FindPropertyByName(TEXT("Other")), nullptr);
	EXPECT_EQ(LoadText("UCLASS()\nclass UNoPackage : public UObject { GENERATED_BODY() };\n").Errors.Num(), 1);
}

TEST_F(FScriptHeaders, NativeClassTakesFunctions)
{
	const FScriptHeaderReport Report = LoadText("// Package: /Script/ReflectedTestTypes\n"
												"// Extends native\n"
												"UCLASS()\n"
												"class UReflectedPart : public UObject\n"
												"{\n"
												"\tGENERATED_BODY()\n"
												"\tUFUNCTION(BlueprintCallable) void Break();\n"
												"};\n");
	EXPECT_EQ(Report.Errors, TArray<FString>());
	EXPECT_NE(UReflectedStrongPart::StaticClass()->FindFunctionByName(TEXT("Break")), nullptr);
}

TEST_F(FScriptHeaders, ClassIsContinuedInAnotherHeader)
{
	const FScriptHeaderReport Report = LoadTexts({"// Package: /Script/HeaderTestC\n"
												  "// Continues\n"
												  "UCLASS()\n"
												  "class UScriptLong : public UObject\n"
												  "{\n"
												  "\tGENERATED_BODY()\n"
												  "\tUFUNCTION(BlueprintCallable) void Second();\n"
												  "\tUPROPERTY() int32 SecondValue;\n"
												  "};\n",
		"// Package: /Script/HeaderTestC\n"
		"UCLASS(meta = (Short = \"no\"))\n"
		"class UScriptLong : public UObject\n"
		"{\n"
		"\tGENERATED_BODY()\n"
		"\tUFUNCTION(BlueprintCallable) void First();\n"
		"\tUPROPERTY() int32 FirstValue;\n"
		"};\n"});
	EXPECT_EQ(Report.Errors, TArray<FString>());
	EXPECT_EQ(Report.NumClasses, 1);
	EXPECT_EQ(Report.NumFunctions, 2);
	const UClass* const Long = FindObject<UClass>(nullptr, TEXT("/Script/HeaderTestC.ScriptLong"));
	ASSERT_NE(Long, nullptr);
	EXPECT_EQ(Long->GetMetaData(TEXT("Short")), TEXT("no"));
	EXPECT_NE(Long->FindFunctionByName(TEXT("First")), nullptr);
	EXPECT_NE(Long->FindFunctionByName(TEXT("Second")), nullptr);
	const FProperty* const First = Long->FindPropertyByName(TEXT("FirstValue"));
	const FProperty* const Second = Long->FindPropertyByName(TEXT("SecondValue"));
	ASSERT_TRUE(First && Second);
	EXPECT_NE(First->GetOffset_ForInternal(), Second->GetOffset_ForInternal());
}

TEST_F(FScriptHeaders, EveryContinuationsInitialValuesCount)
{
	const auto MakeContinuation = [](const std::string& Members)
	{
		return "// Package: /Script/HeaderTestDefaults\n// Continues\nUCLASS()\nclass UContinuedDefaults : public UObject\n{\n"
			   "\tGENERATED_BODY()\n" +
			Members + "};\n";
	};
	const FScriptHeaderReport Report = LoadTexts({MakeContinuation("\tUPROPERTY() int32 Second = 2;\n\tUPROPERTY() FString Empty;\n"),
		// One that the class has already stays as the class declares it.
		MakeContinuation("\tUPROPERTY() int32 First = 9;\n\tUPROPERTY() FVector Third = FVector(3);\n"),
		"// Package: /Script/HeaderTestDefaults\nUCLASS()\nclass UContinuedDefaults : public UObject\n{\n\tGENERATED_BODY()\n"
		"\tUPROPERTY() int32 First = 1;\n};\n"
		"UCLASS()\nclass UContinuedDefaultsChild : public UContinuedDefaults\n{\n\tGENERATED_BODY()\n\tUPROPERTY() int32 Own = 4;\n};\n"});
	EXPECT_EQ(Report.Errors, TArray<FString>());
	for (const TCHAR* const Name : {TEXT("ContinuedDefaults"), TEXT("ContinuedDefaultsChild")})
	{
		const UClass* const Class = FindObject<UClass>(nullptr, *(FString(TEXT("/Script/HeaderTestDefaults.")) + Name));
		ASSERT_NE(Class, nullptr);
		for (UObject* const Object : {Class->GetDefaultObject(), NewObject<UObject>(Package, Class)})
		{
			EXPECT_EQ(*FindFProperty<FIntProperty>(Class, TEXT("First"))->ContainerPtrToValuePtr<int32>(Object), 1);
			EXPECT_EQ(*FindFProperty<FIntProperty>(Class, TEXT("Second"))->ContainerPtrToValuePtr<int32>(Object), 2);
			EXPECT_EQ(*FindFProperty<FStructProperty>(Class, TEXT("Third"))->ContainerPtrToValuePtr<FVector>(Object), FVector(3.0));
		}
	}
}

TEST_F(FScriptHeaders, AnInheritedMemberStartsAsTheDirectiveSays)
{
	const FScriptHeaderReport Report = LoadText(
		"// Package: /Script/HeaderTestInherited\n"
		"UCLASS()\nclass UInheritedBase : public UObject\n{\n\tGENERATED_BODY()\n\tUPROPERTY() int32 Value = 1;\n};\n"
		"// Initially: Value = 2\nUCLASS()\nclass UInheritedChild : public UInheritedBase\n{\n\tGENERATED_BODY()\n};\n"
		"UCLASS()\nclass UInheritedGrandchild : public UInheritedChild\n{\n\tGENERATED_BODY()\n};\n"
		"// Initially: Nothing = 2\nUCLASS()\nclass UInheritedMistake : public UInheritedBase\n{\n\tGENERATED_BODY()\n};\n");
	ASSERT_EQ(Report.Errors.Num(), 1);
	EXPECT_TRUE(Report.Errors[0].Contains(TEXT("Nothing"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
	const std::pair<const TCHAR*, int32> Expected[] = {
		{TEXT("InheritedBase"), 1}, {TEXT("InheritedChild"), 2}, {TEXT("InheritedGrandchild"), 2}, {TEXT("InheritedMistake"), 1}};
	for (const auto& [Name, Value] : Expected)
	{
		const UClass* const Class = FindObject<UClass>(nullptr, *(FString(TEXT("/Script/HeaderTestInherited.")) + Name));
		ASSERT_NE(Class, nullptr);
		const FIntProperty* const Property = FindFProperty<FIntProperty>(Class, TEXT("Value"));
		EXPECT_EQ(*Property->ContainerPtrToValuePtr<int32>(Class->GetDefaultObject()), Value);
	}
}

TEST_F(FScriptHeaders, AMistakeInAContinuationsInitialValueNamesItsFile)
{
	const FScriptHeaderReport Report = LoadTexts({"// Package: /Script/HeaderTestMistake\nUCLASS()\nclass UMistaken : public UObject\n{\n"
												  "\tGENERATED_BODY()\n};\n",
		"// Package: /Script/HeaderTestMistake\n// Continues\nUCLASS()\nclass UMistaken : public UObject\n{\n"
		"\tGENERATED_BODY()\n\tUPROPERTY() int32 Value = ComputeIt();\n};\n"});
	ASSERT_EQ(Report.Errors.Num(), 1);
	EXPECT_TRUE(Report.Errors[0].Contains(TEXT("Value"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
	EXPECT_TRUE(Report.Errors[0].Contains(TEXT(":7:"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
}

TEST_F(FScriptHeaders, AReferenceToAPartIsInstancedWhereverThePartIsDeclared)
{
	const FScriptHeaderReport Report = LoadTexts({R"(// Package: /Script/HeaderTestParts
USTRUCT()
struct FScriptHolder { GENERATED_BODY() UPROPERTY() TObjectPtr<UScriptArm> Held; };
UCLASS()
class UScriptOwner : public UObject
{
	GENERATED_BODY()
	UPROPERTY() TObjectPtr<UScriptArm> Arm;
	UPROPERTY() TArray<TObjectPtr<UScriptArm>> Arms;
	UPROPERTY() TObjectPtr<UScriptOwner> Other;
};
UCLASS()
class UScriptArm : public UScriptLimb { GENERATED_BODY() };
)",
		"// Package: /Script/HeaderTestParts\nUCLASS()\nclass UScriptLimb : public UReflectedPart\n{\n\tGENERATED_BODY()\n};\n"});
	EXPECT_EQ(Report.Errors, TArray<FString>());
	const UClass* const Owner = FindObject<UClass>(nullptr, TEXT("/Script/HeaderTestParts.ScriptOwner"));
	const UScriptStruct* const Holder = FindObject<UScriptStruct>(nullptr, TEXT("/Script/HeaderTestParts.ScriptHolder"));
	ASSERT_TRUE(Owner && Holder);
	EXPECT_TRUE(Owner->FindPropertyByName(TEXT("Arm"))->HasAllPropertyFlags(CPF_InstancedReference | CPF_ExportObject));
	EXPECT_TRUE(Owner->FindPropertyByName(TEXT("Arms"))->HasAnyPropertyFlags(CPF_ContainsInstancedReference));
	EXPECT_FALSE(Owner->FindPropertyByName(TEXT("Other"))->HasAnyPropertyFlags(CPF_InstancedReference));
	EXPECT_TRUE(Owner->HasAnyClassFlags(CLASS_HasInstancedReference));
	EXPECT_TRUE(Holder->FindPropertyByName(TEXT("Held"))->HasAnyPropertyFlags(CPF_InstancedReference));
}

TEST_F(FScriptHeaders, ContinuationWithoutItsClassIsAnError)
{
	const FScriptHeaderReport Report = LoadText("// Package: /Script/HeaderTestD\n"
												"// Continues\n"
												"UCLASS()\n"
												"class UScriptNobody : public UObject\n"
												"{\n"
												"\tGENERATED_BODY()\n"
												"};\n");
	ASSERT_EQ(Report.Errors.Num(), 1);
	EXPECT_TRUE(Report.Errors[0].StartsWith(TEXT("Test.h:4:"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/HeaderTestD.ScriptNobody")), nullptr);
}

TEST_F(FScriptHeaders, StockLoadsWithNothingToReportButAbsentClasses)
{
	const FScriptHeaderReport Report = LoadScriptHeaders(TEXT(VEXEL_SOURCE_DIR "/Engine/ScriptApi"));
	EXPECT_GT(Report.NumFunctions, 3000);
	// Classes of the Engine module are not linked here, so what extends them or needs their members is reported; nothing else is.
	for (const FString& Error : Report.Errors)
	{
		EXPECT_TRUE(Error.Contains(TEXT("there is no")) || Error.Contains(TEXT("DefaultSubobjects.txt"))) << TCHAR_TO_UTF8(*Error);
	}
}
