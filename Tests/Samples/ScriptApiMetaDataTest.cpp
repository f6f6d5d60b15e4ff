#include "ScriptApiHeaders.h"

#include "EdGraphSchema_K2.h"
#include "EditorFixture.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

#include <functional>

using namespace HeaderParser;

namespace
{
/** What the functions' metadata says about their parameters. */
using FScriptApiMetaDataTest = FEditorTest;

void ForEachFunction(const std::function<void(const UFunction*, const FFunctionDeclaration&, const std::string&)>& Visit)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FClassDeclaration& Class : Header.Header.Classes)
		{
			const UClass* const Reflected = FindDeclaredClass(Header.Header, Class.Name);
			for (const FFunctionDeclaration& Function : Class.Functions)
			{
				const UFunction* const Found = Reflected ? Reflected->FindFunctionByName(FName(UTF8_TO_TCHAR(Function.Name.c_str())))
														 : nullptr;
				const std::string Line = Header.Path.filename().string() + ":" + std::to_string(Function.Position.Line);
				const std::string Where = Line + ": " + Class.Name + "::" + Function.Name;
				ASSERT_TRUE(Found) << Where;
				Visit(Found, Function, Where);
			}
		}
	}
}

TArray<FString> SplitNames(const FString& List)
{
	TArray<FString> Names;
	List.Replace(TEXT("|"), TEXT(",")).ParseIntoArray(Names, TEXT(","));
	for (FString& Name : Names)
	{
		Name.TrimStartAndEndInline();
	}
	return Names;
}

TEST_F(FScriptApiMetaDataTest, EveryEventAndEveryMemberOfACompiledClassSaysWhatItIs)
{
	int32 NumEvents = 0;
	for (TObjectIterator<UFunction> Function; Function; ++Function)
	{
		const UClass* const Class = Function->GetOwnerClass();
		const bool bIsOurs = Class && Class->HasAnyClassFlags(CLASS_Native) && Class->GetOutermost()->GetName() == TEXT("/Script/Engine");
		const bool bIsEvent = bIsOurs && Function->HasAnyFunctionFlags(FUNC_BlueprintEvent);
		NumEvents += bIsEvent ? 1 : 0;
		if (bIsEvent && Function->GetMetaData(TEXT("ToolTip")).IsEmpty())
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*Function->GetPathName());
		}
	}
	EXPECT_GT(NumEvents, 50);
	for (const TCHAR* const Path :
		{TEXT("/Script/Engine.Actor"), TEXT("/Script/Engine.ActorComponent"), TEXT("/Script/Engine.SceneComponent")})
	{
		const UClass* const Class = FindObject<UClass>(nullptr, Path);
		for (TFieldIterator<UFunction> Function(Class, EFieldIterationFlags::None); Function; ++Function)
		{
			const bool bIsInternal = Function->HasMetaData(FBlueprintMetadata::MD_BlueprintInternalUseOnly) ||
				Function->HasAnyFunctionFlags(FUNC_Delegate);
			EXPECT_TRUE(bIsInternal || !Function->GetMetaData(TEXT("ToolTip")).IsEmpty()) << TCHAR_TO_UTF8(*Function->GetPathName());
		}
	}
}

TEST_F(FScriptApiMetaDataTest, NamesParametersThatAreThere)
{
	const TCHAR* const Keys[] = {TEXT("WorldContext"), TEXT("LatentInfo"), TEXT("ArrayParm"), TEXT("ArrayTypeDependentParams"),
		TEXT("DeterminesOutputType"),
		TEXT("DynamicOutputParam"), TEXT("DefaultToSelf"), TEXT("HidePin"), TEXT("ExpandEnumAsExecs"), TEXT("ExpandBoolAsExecs"),
		TEXT("AutoCreateRefTerm"),
		TEXT("CustomStructureParam"), TEXT("SetParam"), TEXT("MapParam"), TEXT("MapKeyParam"), TEXT("MapValueParam"),
		TEXT("InternalUseParam"), TEXT("AdvancedDisplay")};
	ForEachFunction([&Keys](const UFunction* Function, const FFunctionDeclaration&, const std::string& Where)
		{
		for (const TCHAR* const Key : Keys)
		{
			const FString* const List = Function->FindMetaData(Key);
			for (const FString& Name : List ? SplitNames(*List) : TArray<FString>())
			{
				// AdvancedDisplay may count the parameters that are shown instead.
				const bool bCount = Name.IsNumeric() && FCString::Atoi(*Name) < Function->NumParms;
				EXPECT_TRUE(bCount || Function->FindChildProperty(FName(*Name)))
					<< Where << " has no " << TCHAR_TO_UTF8(*Name) << " for " << TCHAR_TO_UTF8(Key);
			}
		} });
}

TEST_F(FScriptApiMetaDataTest, LatentFunctionsNameTheirLatentInfo)
{
	ForEachFunction([](const UFunction* Function, const FFunctionDeclaration&, const std::string& Where)
		{
		bool bTakesLatentInfo = false;
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			const FStructProperty* const Struct = CastField<FStructProperty>(*It);
			bTakesLatentInfo |= Struct && Struct->Struct->GetFName() == FName(TEXT("LatentActionInfo"));
		}
		EXPECT_EQ(bTakesLatentInfo, Function->HasMetaData(TEXT("Latent"))) << Where;
		EXPECT_EQ(bTakesLatentInfo, Function->HasMetaData(TEXT("LatentInfo"))) << Where; });
}

TEST_F(FScriptApiMetaDataTest, StaticFunctionsWithAWorldContextSaySo)
{
	ForEachFunction([](const UFunction* Function, const FFunctionDeclaration&, const std::string& Where)
		{
		if (Function->HasAnyFunctionFlags(FUNC_Static) && Function->FindChildProperty(FName(TEXT("WorldContextObject"))))
		{
			EXPECT_TRUE(Function->HasMetaData(TEXT("WorldContext"))) << Where;
		} });
}

/** A default is kept as metadata, in the form that a pin of the parameter's type takes. */
TEST_F(FScriptApiMetaDataTest, EveryDefaultArgumentIsAGoodDefaultOfItsPin)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	ForEachFunction([Schema](const UFunction* Function, const FFunctionDeclaration& Declaration, const std::string& Where)
		{
		for (const FPropertyDeclaration& Parameter : Declaration.Parameters)
		{
			const std::string* const Default = Declaration.MetaData.Find("CPP_Default_" + Parameter.Name);
			EXPECT_EQ(Default != nullptr, !Parameter.DefaultText.empty())
				<< Where << ", " << Parameter.Name << " = " << Parameter.DefaultText;
			const FProperty* const Property = Function->FindPropertyByName(FName(UTF8_TO_TCHAR(Parameter.Name.c_str())));
			FEdGraphPinType PinType;
			if (!Default || !Property || !Schema->ConvertPropertyToPinType(Property, PinType))
			{
				continue;
			}
			FString Value;
			TObjectPtr<UObject> Object;
			FText Text;
			Schema->GetPinDefaultValuesFromString(PinType, nullptr, FString(UTF8_TO_TCHAR(Default->c_str())), Value, Object, Text);
			FString Reason;
			EXPECT_TRUE(Schema->DefaultValueSimpleValidation(PinType, Property->GetFName(), Value, Object, Text, &Reason))
				<< Where << ", " << Parameter.Name << " = " << *Default << ": " << TCHAR_TO_UTF8(*Reason);
		} });
}

/** A parameter that follows one with a default has one too, as C++ demands. */
TEST_F(FScriptApiMetaDataTest, DefaultsStandAtTheEnd)
{
	ForEachFunction([](const UFunction*, const FFunctionDeclaration& Declaration, const std::string& Where)
		{
		bool bSeen = false;
		for (const FPropertyDeclaration& Parameter : Declaration.Parameters)
		{
			EXPECT_TRUE(!bSeen || !Parameter.DefaultText.empty()) << Where << ", " << Parameter.Name;
			bSeen |= !Parameter.DefaultText.empty();
		} });
}

/** Of native structs too, whose functions are declared in these headers. */
TEST_F(FScriptApiMetaDataTest, MakeAndBreakFunctionsOfStructsExist)
{
	int32 NumNamed = 0;
	for (TObjectIterator<UScriptStruct> It; It; ++It)
	{
		for (const TCHAR* const Key : {TEXT("HasNativeMake"), TEXT("HasNativeBreak")})
		{
			const FString* const Path = It->FindMetaData(Key);
			FString Class;
			FString Function;
			if (!Path || !Path->Split(TEXT("."), &Class, &Function, ESearchCase::IgnoreCase, ESearchDir::FromEnd))
			{
				continue;
			}
			++NumNamed;
			EXPECT_TRUE(FindObject<UFunction>(nullptr, *(Class + TEXT(":") + Function)))
				<< TCHAR_TO_UTF8(*It->GetName()) << ": " << TCHAR_TO_UTF8(**Path);
		}
	}
	EXPECT_GT(NumNamed, 10);
}
}
