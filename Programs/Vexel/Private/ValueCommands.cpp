#include "BlueprintLookup.h"
#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Lum/LumAddress.h"
#include "Session.h"
#include "VexelJson.h"

namespace
{
/** The Blueprint and the address within it, of "BLUEPRINT:ADDRESS". */
struct FValuePath
{
	explicit FValuePath(const FString& Text)
	{
		if (!Text.Split(TEXT(":"), &Blueprint, &Address))
		{
			Blueprint = Text;
		}
	}

	FString Blueprint;
	FString Address;
};

/** A number or a truth value as the text that the property model takes for it, and so for all that lie in the value. */
TSharedPtr<FJsonValue> WithTexts(const TSharedPtr<FJsonValue>& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (Value && Value->TryGetObject(Object))
	{
		const TSharedRef<FJsonObject> Texts = MakeShared<FJsonObject>();
		for (const auto& [Key, Field] : (*Object)->Values)
		{
			Texts->SetField(Key, WithTexts(Field));
		}
		return MakeShared<FJsonValueObject>(Texts);
	}
	FString Text;
	const bool bPlain = Value && (Value->Type == EJson::Number || Value->Type == EJson::Boolean) && Value->TryGetString(Text);
	return bPlain ? MakeShared<FJsonValueString>(Text) : Value;
}

/** A JSON object or a JSON string as itself, anything else as a text. Null, with the reason, for a broken object. */
TSharedPtr<FJsonValue> ReadValue(const FString& Word, FString& OutReason)
{
	const FString Trimmed = Word.TrimStartAndEnd();
	const bool bObject = Trimmed.StartsWith(TEXT("{"));
	if (!bObject && !(Trimmed.StartsWith(TEXT("\"")) && Trimmed.EndsWith(TEXT("\"")) && Trimmed.Len() > 1))
	{
		return MakeShared<FJsonValueString>(Word);
	}
	TSharedPtr<FJsonObject> Document;
	if (FVexelJsonConversions::StringToJson(FString::Printf(TEXT("{\"value\":%s}"), *Trimmed), Document, &OutReason))
	{
		return WithTexts(Document->TryGetField(TEXT("value")));
	}
	return bObject ? TSharedPtr<FJsonValue>() : MakeShared<FJsonValueString>(Word);
}

int32 Fail(const FString& Reason)
{
	FConsole::WriteError(Reason);
	return ExitStatus::Failed;
}

/** Opens the project and calls Work with the Blueprint and what the path names in it. */
int32 WithAddress(const FArguments& Arguments, TFunctionRef<int32(UBlueprint& Blueprint, const FLumAddress& Address)> Work)
{
	FSession Session;
	if (const TOptional<FString> Failure = Session.Start(Arguments))
	{
		return Fail(*Failure);
	}
	const FValuePath Path(Arguments.GetPositional()[0]);
	FString Reason;
	UBlueprint* const Blueprint = BlueprintLookup::Load(Path.Blueprint, Reason);
	if (!Blueprint)
	{
		return Fail(Reason);
	}
	const TVexelExpected<FLumAddress> Address = FLumAddress::Find(*Blueprint, Path.Address);
	return Address.HasError() ? Fail(Address.GetError().ToChainString()) : Work(*Blueprint, Address.GetValue());
}

TSharedRef<FJsonObject> MakeDocument(const UBlueprint& Blueprint, const FArguments& Arguments)
{
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("blueprint"), Blueprint.GetPathName());
	Document->SetStringField(TEXT("address"), FValuePath(Arguments.GetPositional()[0]).Address);
	return Document;
}

/** The property as it is now; false, with the reason on standard error, where it cannot be exported. */
bool WriteDescription(const FArguments& Arguments, const UBlueprint& Blueprint, const FLumAddress& Address)
{
	const TVexelExpected<TSharedRef<FJsonObject>> Description = Address.Describe();
	if (Description.HasError())
	{
		FConsole::WriteError(Description.GetError().ToChainString());
		return false;
	}
	const TSharedRef<FJsonObject> Document = MakeDocument(Blueprint, Arguments);
	Document->SetObjectField(TEXT("property"), Description.GetValue());
	WriteJson(Document);
	return true;
}

int32 GetValue(const FArguments& Arguments, const UBlueprint& Blueprint, const FLumAddress& Address)
{
	if (Arguments.Has(TEXT("--json")))
	{
		return WriteDescription(Arguments, Blueprint, Address) ? ExitStatus::Done : ExitStatus::Failed;
	}
	const TVexelExpected<TSharedRef<FJsonValue>> Value = Address.Read();
	if (Value.HasError())
	{
		return Fail(Value.GetError().ToChainString());
	}
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (Value.GetValue()->TryGetObject(Object))
	{
		WriteJson(Object->ToSharedRef());
	}
	else
	{
		FConsole::WriteLine(Value.GetValue()->AsString());
	}
	return ExitStatus::Done;
}

int32 SetValue(const FArguments& Arguments, UBlueprint& Blueprint, const FLumAddress& Address, const TSharedRef<FJsonValue>& Value)
{
	const TVexelExpected<void> Written = Address.Write(Value);
	if (Written.HasError())
	{
		return Fail(Written.GetError().ToChainString());
	}
	if (Arguments.Has(TEXT("--save")) && !UEditorAssetLibrary::SaveLoadedAsset(&Blueprint))
	{
		return Fail(FString::Printf(TEXT("'%s' cannot be saved"), *Blueprint.GetPathName()));
	}
	return GetValue(Arguments, Blueprint, Address);
}
}

int32 RunGetCommand(const FArguments& Arguments)
{
	if (Arguments.GetPositional().IsEmpty())
	{
		FConsole::WriteError(TEXT("get: which value? such as BP_Door:$ClassDefaultObject.OpenAngle"));
		return ExitStatus::WrongUsage;
	}
	return WithAddress(Arguments, [&Arguments](UBlueprint& Blueprint, const FLumAddress& Address)
		{ return GetValue(Arguments, Blueprint, Address); });
}

int32 RunSetCommand(const FArguments& Arguments)
{
	if (Arguments.GetPositional().Num() < 2)
	{
		FConsole::WriteError(TEXT("set: which value, and what? such as BP_Door:$ClassDefaultObject.OpenAngle 110"));
		return ExitStatus::WrongUsage;
	}
	FString Reason;
	const TSharedPtr<FJsonValue> Value = ReadValue(Arguments.GetPositional()[1], Reason);
	if (!Value)
	{
		FConsole::WriteError(FString::Printf(TEXT("set: the value is not a JSON object: %s"), *Reason));
		return ExitStatus::WrongUsage;
	}
	return WithAddress(Arguments, [&Arguments, &Value](UBlueprint& Blueprint, const FLumAddress& Address)
		{ return SetValue(Arguments, Blueprint, Address, Value.ToSharedRef()); });
}
