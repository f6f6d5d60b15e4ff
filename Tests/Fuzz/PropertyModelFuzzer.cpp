#include "Dom/JsonObject.h"
#include "Editor.h"
#include "HeadlessEditor.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "LumTestTypes.h"
#include "ScopedTransaction.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{
/** One line of an input: what to do, an index that is one more, the path where, and behind a blank the value. */
struct FStep
{
	TCHAR Operation;
	int32 Index;
	FString Path;
	TSharedPtr<FJsonValue> Value;
};

[[noreturn]] void Fail(const TCHAR* What, const FString& Details)
{
	std::fprintf(stderr, "%s: %s\n", TCHAR_TO_UTF8(What), TCHAR_TO_UTF8(*Details));
	abort();
}

FStep ReadStep(const FString& Line)
{
	FStep Step{TEXT('?'), 0, FString(), nullptr};
	FString Head = Line;
	FString Json;
	Line.Split(TEXT(" "), &Head, &Json);
	if (!Head.IsEmpty())
	{
		Step.Operation = Head[0];
		Step.Index = Head.Len() > 1 ? static_cast<int32>(Head[1]) - TEXT('1') : 0;
		Step.Path = Head.RightChop(2);
	}
	TSharedPtr<FJsonObject> Document;
	FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("{\"v\":") + Json + TEXT("}")), Document);
	// What is no JSON is the text of a value, so that most inputs reach one.
	Step.Value = Document ? Document->TryGetField(TEXT("v")) : TSharedPtr<FJsonValue>(MakeShared<FJsonValueString>(Json));
	return Step;
}

/** The engine's text of all values of the object and of its parts. */
FString Describe(const UObject& Object)
{
	FString Text;
	for (TFieldIterator<FProperty> It(Object.GetClass()); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			const void* const Data = It->ContainerPtrToValuePtr<void>(&Object, Index);
			It->ExportText_Direct(Text, Data, Data, nullptr, PPF_None);
			Text += TEXT("\n");
		}
	}
	TArray<UObject*> Parts;
	GetObjectsWithOuter(&Object, Parts, false);
	for (const UObject* const Part : Parts)
	{
		Text += Part->GetName() + TEXT(":\n") + Describe(*Part);
	}
	return Text;
}

void CheckNumber(const FProperty& Property, const void* Data)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	if (Number && Number->IsFloatingPoint() && !FMath::IsFinite(Number->GetFloatingPointPropertyValue(Data)))
	{
		Fail(TEXT("A number is not finite"), Property.GetName());
	}
}

/** What holds of every value, whatever was imported: numbers are finite, and hashed containers find what they have. */
void CheckValue(const FProperty& Property, const void* Data)
{
	CheckNumber(Property, Data);
	if (const FStructProperty* const Struct = CastField<FStructProperty>(&Property))
	{
		for (TFieldIterator<FProperty> It(Struct->Struct); It; ++It)
		{
			CheckValue(**It, It->ContainerPtrToValuePtr<void>(Data));
		}
	}
	else if (const FArrayProperty* const Array = CastField<FArrayProperty>(&Property))
	{
		const FScriptArrayHelper Helper(Array, Data);
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			CheckValue(*Array->Inner, Helper.GetRawPtr(Index));
		}
	}
	else if (const FSetProperty* const Set = CastField<FSetProperty>(&Property))
	{
		const FScriptSetHelper Helper(Set, Data);
		for (FScriptSetHelper::FIterator It = Helper.CreateIterator(); It; ++It)
		{
			const void* const Element = Helper.GetElementPtr(It.GetInternalIndex());
			CheckValue(*Set->ElementProp, Element);
			if (Helper.FindElementIndex(Element) != It.GetInternalIndex())
			{
				Fail(TEXT("A set does not find its element, or has it twice"), Property.GetName());
			}
		}
	}
	else if (const FMapProperty* const Map = CastField<FMapProperty>(&Property))
	{
		const FScriptMapHelper Helper(Map, Data);
		for (FScriptMapHelper::FIterator It = Helper.CreateIterator(); It; ++It)
		{
			const void* const Key = Helper.GetKeyPtr(It.GetInternalIndex());
			CheckValue(*Map->KeyProp, Key);
			CheckValue(*Map->ValueProp, Helper.GetValuePtr(It.GetInternalIndex()));
			if (Helper.FindMapIndexWithKey(Key) != It.GetInternalIndex())
			{
				Fail(TEXT("A map does not find its key, or has it twice"), Property.GetName());
			}
		}
	}
}

/** An object with a value of every kind, parts that lie in each other, and a transaction a step. */
class FEditedThing
{
public:
	FEditedThing()
		: Thing(NewObject<ULumThing>(GetTransientPackage(), NAME_None, RF_Transactional))
	{
		ULumPart* const Part = NewObject<ULumPart>(Thing, NAME_None, RF_Transactional);
		Part->Next = NewObject<ULumPart>(Part, NAME_None, RF_Transactional);
		Thing->Part = Part;
		Thing->Parts = {Part, nullptr};
		Thing->Structs.Add(TEXT("a"), FLumOuter());
		Thing->Keys.Add(FLumKey());
		Before = Describe(*Thing);
	}

	void Do(const FStep& Step)
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Property =
			FLumHelper::CompoundPathResolve(MakeShared<FLumUnrealObjectCompound>(*Thing), Step.Path);
		if (Property.HasError())
		{
			return;
		}
		const FString Old = Describe(*Thing);
		const bool bDone = DoAt(*Property.GetValue(), Step);
		if (!bDone && !MayDoHalf(Step) && !Describe(*Thing).Equals(Old, ESearchCase::CaseSensitive))
		{
			Fail(TEXT("What was refused changed something"), Step.Path);
		}
		for (TFieldIterator<FProperty> It(Thing->GetClass()); It; ++It)
		{
			CheckValue(**It, It->ContainerPtrToValuePtr<void>(Thing));
		}
	}

	void UndoAll()
	{
		while (GEditor->UndoTransaction())
		{
		}
		if (!Describe(*Thing).Equals(Before, ESearchCase::CaseSensitive))
		{
			Fail(TEXT("Undo does not bring back what was"), Describe(*Thing));
		}
	}

private:
	/** Of a value with parts, what came before the part that is refused stays. */
	static bool MayDoHalf(const FStep& Step) { return Step.Value && Step.Value->Type == EJson::Object && Step.Operation == TEXT('='); }

	bool DoAt(ILumProperty& Property, const FStep& Step) const
	{
		const TSharedPtr<ILumCompound> Compound =
			Property.AsCompoundProperty() ? Property.AsCompoundProperty()->GetCompound().GetValue() : nullptr;
		ILumCollectionCompound* const Collection = Compound ? Compound->AsCollectionCompound() : nullptr;
		const FScopedTransaction Transaction(INVTEXT("Step"));
		if (Step.Operation == TEXT('=') && Step.Value)
		{
			const bool bTaken = Property.JsonImportValue(Context, Step.Value.ToSharedRef()).HasValue();
			CheckTakesWhatItExports(Property, bTaken);
			return bTaken;
		}
		if (Step.Operation == TEXT('+') && Collection && Step.Value)
		{
			return Collection->InsertAt(Context, Step.Index, Step.Value.ToSharedRef()).HasValue();
		}
		if (Step.Operation == TEXT('-') && Collection)
		{
			return Collection->RemoveAt(Step.Index).HasValue();
		}
		if (Step.Operation == TEXT('#') && Collection)
		{
			return Collection->Resize(Step.Index).HasValue();
		}
		return !Property.JsonExportPropertyObject(Context).HasError();
	}

	/** A value that is a text takes the text that it is exported as, which changes nothing. */
	void CheckTakesWhatItExports(ILumProperty& Property, bool bCanBeWritten) const
	{
		const TVexelExpected<TSharedRef<FJsonValue>> Exported = Property.JsonExportValue(Context);
		if (!bCanBeWritten || Exported.HasError() || Exported.GetValue()->Type != EJson::String)
		{
			return;
		}
		const FString Now = Describe(*Thing);
		const TVexelExpected<void> Again = Property.JsonImportValue(Context, Exported.GetValue());
		if (Again.HasError() || !Describe(*Thing).Equals(Now, ESearchCase::CaseSensitive))
		{
			Fail(TEXT("A value does not take what it is exported as"),
				Exported.GetValue()->AsString() + TEXT(" ") + (Again.HasError() ? Again.GetError().GetMessage() : FString()));
		}
	}

	ULumThing* Thing;
	FString Before;
	FLumContext Context{MakeShared<FVexelBlueprintMapping>()};
};

void Discard()
{
	GEditor->ResetTransaction(INVTEXT("Fuzz"));
	static int32 NumRuns = 0;
	constexpr int32 RunsBetweenCollections = 256;
	if (++NumRuns % RunsBetweenCollections == 0)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
}
}

/** The editor lives as long as the process. */
extern "C" const char* __asan_default_options()
{
	return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-fuzz-XXXXXX").string();
	static const std::filesystem::path Directory = mkdtemp(Pattern.data());
	std::ofstream(Directory / "Fuzz.uproject") << "{\n\t\"FileVersion\": 3\n}\n";
	std::atexit([]
		{ std::error_code Ignored; std::filesystem::remove_all(Directory, Ignored); });
	FHeadlessEditorOptions Options;
	Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
	Options.Project = FString(UTF8_TO_TCHAR(Directory.c_str()));
	const FString Failure = FHeadlessEditor::Start(Options);
	if (!Failure.IsEmpty())
	{
		Fail(TEXT("The editor does not start"), Failure);
	}
	return 0;
}

/** Resolves paths of an object and imports JSON there, a line of text a step. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	TArray<FString> Lines;
	FString(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Data), static_cast<int32>(Size))).ParseIntoArray(Lines, TEXT("\n"));
	constexpr int32 MaxSteps = 16;
	FEditedThing Thing;
	for (int32 Index = 0; Index < FMath::Min(Lines.Num(), MaxSteps); ++Index)
	{
		Thing.Do(ReadStep(Lines[Index]));
	}
	Thing.UndoAll();
	Discard();
	return 0;
}
