#include "LumValueFixture.h"

#include "Editor.h"
#include "Editor/TransBuffer.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

void FLumValueTest::SetUp()
{
	FEditorTest::SetUp();
	Thing = NewObject<ULumThing>(GetTransientPackage(), NAME_None, RF_Transactional);
	Root = Thing;
}

void FLumValueTest::TearDown()
{
	if (GEditor)
	{
		GEditor->ResetTransaction(INVTEXT("Test"));
	}
	FEditorTest::TearDown();
}

std::string FLumValueTest::Say(const TVexelExpected<void>& Result)
{
	return Result.HasError() ? Utf8(Result.GetError().GetMessage().Replace(TEXT("\n"), TEXT(", "))) : "ok";
}

TSharedPtr<FJsonValue> FLumValueTest::Parse(const char* Json)
{
	TSharedPtr<FJsonObject> Object;
	const FString Text = FString::Printf(TEXT("{\"v\":%s}"), *FString(UTF8_TO_TCHAR(Json)));
	FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object);
	return Object ? Object->TryGetField(TEXT("v")) : nullptr;
}

TVexelExpected<TSharedRef<ILumProperty>> FLumValueTest::Resolve(const TCHAR* Path) const
{
	return FLumHelper::CompoundPathResolve(MakeShared<FLumUnrealObjectCompound>(*Root), Path);
}

std::string FLumValueTest::Import(const TCHAR* Path, const char* Json) const
{
	const TVexelExpected<TSharedRef<ILumProperty>> Property = Resolve(Path);
	const TSharedPtr<FJsonValue> NewValue = Parse(Json);
	if (Property.HasError() || !NewValue)
	{
		return NewValue ? Utf8(Property.GetError().GetMessage()) : "no JSON";
	}
	return Say(Property.GetValue()->JsonImportValue(Context, NewValue.ToSharedRef()));
}

std::string FLumValueTest::Value(const TCHAR* Path) const
{
	const TVexelExpected<TSharedRef<ILumProperty>> Property = Resolve(Path);
	if (Property.HasError())
	{
		return Utf8(Property.GetError().GetMessage());
	}
	const TVexelExpected<TSharedRef<FJsonValue>> Exported = Property.GetValue()->JsonExportValue(Context);
	if (Exported.HasError())
	{
		return Utf8(Exported.GetError().GetMessage());
	}
	if (Exported.GetValue()->Type == EJson::String)
	{
		return Utf8(Exported.GetValue()->AsString());
	}
	FString Text;
	FJsonSerializer::Serialize(
		Exported.GetValue()->AsObject().ToSharedRef(), TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	return Utf8(Text);
}

TSharedRef<ILumCompound> FLumValueTest::Compound(const TCHAR* Path) const
{
	return Resolve(Path).GetValue()->AsCompoundProperty()->GetCompound().GetValue().ToSharedRef();
}

ILumCollectionCompound& FLumValueTest::Collection(const TCHAR* Path)
{
	LastCompound = Compound(Path);
	return *LastCompound->AsCollectionCompound();
}

std::string FLumValueTest::Snapshot(const UObject& Object)
{
	FString Text;
	for (TFieldIterator<FProperty> It(Object.GetClass()); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			const void* const Data = It->ContainerPtrToValuePtr<void>(&Object, Index);
			Text += It->GetName() + TEXT("=");
			It->ExportText_Direct(Text, Data, Data, nullptr, PPF_None);
			Text += TEXT("\n");
		}
	}
	return Utf8(Text);
}
