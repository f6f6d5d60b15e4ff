#include "Tools/Blueprint/VexelObjectEditIgnored.h"

#include "Lum/LumHelper.h"
#include "Lum/LumVariable.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"

#include "Dom/JsonObject.h"

namespace
{
/** Looks through the requests; each place is told as it is written in programs, "requests[0].operations[2]". */
class FIgnoredParts
{
public:
	void AddRequest(const FJsonObject& Request, const FString& Place)
	{
		AddUnknownKeys(Request, {TEXT("target"), TEXT("operations")}, Place);
		const TSharedPtr<FJsonObject>* Target = nullptr;
		if (Request.TryGetObjectField(TEXT("target"), Target))
		{
			AddUnknownKeys(**Target, {TEXT("target_type"), TEXT("graph"), TEXT("node")}, Place + TEXT(".target"));
		}
		const TArray<TSharedPtr<FJsonValue>>* Operations = nullptr;
		if (!Request.TryGetArrayField(TEXT("operations"), Operations))
		{
			Add(FString::Printf(TEXT("`%s` has no array `operations`: nothing is done"), *Place));
			return;
		}
		for (int32 Index = 0; Index < Operations->Num(); ++Index)
		{
			const TSharedPtr<FJsonObject>* Operation = nullptr;
			if ((*Operations)[Index] && (*Operations)[Index]->TryGetObject(Operation))
			{
				AddOperation(**Operation, FString::Printf(TEXT("%s.operations[%d]"), *Place, Index));
			}
		}
	}

	TArray<FString> TakeSentences()
	{
		if (NumMore > 0)
		{
			Sentences.Add(FString::Printf(TEXT("%d more parts of the requests are ignored"), NumMore));
		}
		return MoveTemp(Sentences);
	}

private:
	/** An operation without a word for it is passed over without a word. */
	void AddOperation(const FJsonObject& Operation, const FString& Place)
	{
		FString Word;
		if (!Operation.TryGetStringField(TEXT("operation"), Word))
		{
			return;
		}
		const EVexelEditOperation Type = VexelEditWords::FindOperation(Word);
		if (Type == EVexelEditOperation::Unknown)
		{
			Add(FString::Printf(TEXT("`%s` is skipped: there is no operation '%s'; there are %s"), *Place, *Word.Left(MaxShown),
				*VexelEditWords::ListOperations()));
			return;
		}
		AddUnknownKeys(Operation, {TEXT("operation"), TEXT("scope"), TEXT("prop_path"), TEXT("name"), TEXT("index"), TEXT("value")}, Place);
		const TSharedPtr<FJsonObject>* Value = nullptr;
		if (Type >= EVexelEditOperation::AddVariable && Operation.TryGetObjectField(TEXT("value"), Value))
		{
			AddUnknownKeys(**Value, FLumVarDesc::GetKeys(), Place + TEXT(".value"));
			AddCategoryOfPin(Operation, **Value, Place);
		}
	}

	void AddCategoryOfPin(const FJsonObject& Operation, const FJsonObject& Value, const FString& Place)
	{
		FString Scope;
		FString Category;
		const bool bHasScope = Operation.TryGetStringField(TEXT("scope"), Scope) || Value.TryGetStringField(TEXT("scope_id"), Scope);
		const bool bIsPin = bHasScope && (Scope == LumScope::In().ToString() || Scope == LumScope::Out().ToString());
		if (bIsPin && Value.TryGetStringField(TEXT("category"), Category) && !Category.IsEmpty())
		{
			Add(FString::Printf(TEXT("`category` in `%s.value` is ignored: only member and local variables have one"), *Place));
		}
	}

	void AddUnknownKeys(const FJsonObject& Object, const TArray<FString>& Known, const FString& Place)
	{
		for (const auto& [Key, Value] : Object.Values)
		{
			if (!Known.Contains(Key))
			{
				Add(FString::Printf(TEXT("`%s` in `%s` is ignored: the keys there are `%s`"), *FString(Key).Left(MaxShown), *Place,
					*FString::Join(Known, TEXT("`, `"))));
			}
		}
	}

	void Add(FString&& Sentence)
	{
		constexpr int32 MaxSentences = 20;
		if (Sentences.Num() < MaxSentences)
		{
			Sentences.Add(MoveTemp(Sentence));
			return;
		}
		++NumMore;
	}

	static constexpr int32 MaxShown = 100;

	TArray<FString> Sentences;
	int32 NumMore = 0;
};
}

TArray<FString> VexelObjectEditIgnored::Describe(const TArray<TSharedPtr<FJsonValue>>& Requests)
{
	FIgnoredParts Ignored;
	for (int32 Index = 0; Index < Requests.Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* Request = nullptr;
		if (Requests[Index] && Requests[Index]->TryGetObject(Request))
		{
			Ignored.AddRequest(**Request, FString::Printf(TEXT("requests[%d]"), Index));
		}
	}
	return Ignored.TakeSentences();
}
