#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Dom/JsonObject.h"
#include "Misc/Optional.h"
#include "VexelExpected.h"

/** What an argument must be apart from its type. Every part may be left out. */
struct FVexelToolRule
{
	/** Range of an integer, both ends included; the most bounds the length of a text as well. */
	int32 Least = MIN_int32;
	int32 Most = MAX_int32;
	/** A text or an array must have something in it. */
	bool bNotEmpty = false;
	/** Said of an argument that is missing or wrong, in place of the usual words; a literal. */
	const TCHAR* Complaint = nullptr;
	/** The same of an element of an array. */
	const TCHAR* ElementComplaint = nullptr;
};

/**
 * The arguments of a tool: their names, and how each gets from the JSON into the tool's record. An argument that is not in the
 * schema is ignored; null is as good as missing. TVexelToolSchema makes one.
 */
class FVexelToolSchema
{
public:
	struct FField
	{
		const TCHAR* Name;
		bool bRequired;
		/** "string", "array of objects" */
		FString TypeName;
		FVexelToolRule Rule;
		/** Whether a value is what the rule and the type ask for; the elements of an array are looked at by Read. */
		bool (*Fits)(const FJsonValue& Value, const FVexelToolRule& Rule);
		TFunction<TVexelExpected<void>(const FJsonValue& Value, const FField& Field, const FString& Path, void* Record)> Read;
	};

	/** In the order in which they are read: the first that is wrong is the one complained of. */
	const TArray<FField>& GetFields() const { return Fields; }

protected:
	/** Path is where the object stands in the input, with a dot at its end; empty for the input itself. */
	TVexelExpected<void> ReadInto(void* Record, const FJsonObject& Object, const FString& Path) const;

	TArray<FField> Fields;
};

/** How a C++ type is read from JSON: what the type is called, whether a value fits it and the rule, and the value. */
template <typename T>
struct TVexelToolValue;

namespace VexelInternal
{
/** "Invalid input": "`nodes[2].limit` must be an integer from 1 to 200, not 0", or the complaint where there is one. */
FVexelError MakeToolInputError(const FString& Path, const FString& TypeName, const FVexelToolRule& Rule, const FJsonValue& Value, const TCHAR* Complaint);

template <typename T>
concept CVexelToolRecord = requires
{
	T::GetSchema();
};

/** Whether the value is a whole number in the rule's range. */
bool IsToolInteger(const FJsonValue& Value, const FVexelToolRule& Rule);
}

template <>
struct TVexelToolValue<FString>
{
	static FString GetTypeName() { return TEXT("string"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule);
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, FString& Out);
};

template <>
struct TVexelToolValue<int32>
{
	static FString GetTypeName() { return TEXT("integer"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule) { return VexelInternal::IsToolInteger(Value, Rule); }
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, int32& Out);
};

template <>
struct TVexelToolValue<bool>
{
	static FString GetTypeName() { return TEXT("boolean"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule) { return Value.Type == EJson::Boolean; }
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, bool& Out);
};

/** An object that the tool reads by itself. */
template <>
struct TVexelToolValue<TSharedPtr<FJsonObject>>
{
	static FString GetTypeName() { return TEXT("object"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule) { return Value.Type == EJson::Object; }
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TSharedPtr<FJsonObject>& Out);
};

/** An object that is a record with a schema of its own. */
template <VexelInternal::CVexelToolRecord T>
struct TVexelToolValue<T>
{
	static FString GetTypeName() { return TEXT("object"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule) { return Value.Type == EJson::Object; }
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, T& Out)
	{
		return T::GetSchema().ReadRecord(*Value.AsObject(), Path + TEXT("."), Out);
	}
};

/** A value that may be absent. */
template <typename T>
struct TVexelToolValue<TOptional<T>>
{
	static FString GetTypeName() { return TVexelToolValue<T>::GetTypeName(); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule) { return TVexelToolValue<T>::Fits(Value, Rule); }
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TOptional<T>& Out)
	{
		return TVexelToolValue<T>::Read(Value, Rule, Path, Out.Emplace());
	}
};

template <typename T>
struct TVexelToolValue<TArray<T>>
{
	static FString GetTypeName() { return FString::Printf(TEXT("array of %ss"), *TVexelToolValue<T>::GetTypeName()); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule)
	{
		const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
		return Value.TryGetArray(Elements) && (!Rule.bNotEmpty || Elements->Num() > 0);
	}
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TArray<T>& Out)
	{
		const TArray<TSharedPtr<FJsonValue>>& Elements = Value.AsArray();
		for (int32 Index = 0; Index < Elements.Num(); ++Index)
		{
			const FVexelToolRule ElementRule;
			const FString ElementPath = FString::Printf(TEXT("%s[%d]"), *Path, Index);
			if (!TVexelToolValue<T>::Fits(*Elements[Index], ElementRule))
			{
				return VexelInternal::MakeToolInputError(
					ElementPath, TVexelToolValue<T>::GetTypeName(), ElementRule, *Elements[Index], Rule.ElementComplaint);
			}
			VEXEL_TRY_VOID(TVexelToolValue<T>::Read(*Elements[Index], ElementRule, ElementPath, Out.AddDefaulted_GetRef()));
		}
		return {};
	}
};

/** An array of anything, whose elements the tool reads by itself. */
template <>
struct TVexelToolValue<TArray<TSharedPtr<FJsonValue>>>
{
	static FString GetTypeName() { return TEXT("array"); }
	static bool Fits(const FJsonValue& Value, const FVexelToolRule& Rule);
	static TVexelExpected<void> Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TArray<TSharedPtr<FJsonValue>>& Out);
};

/**
 * The schema of a tool's record. The record has it as a static function, and its members have their defaults as initial values:
 *
 *     struct FFindInput
 *     {
 *         FString Name;
 *         int32 Limit = 20;
 *
 *         static const TVexelToolSchema<FFindInput>& GetSchema()
 *         {
 *             static const TVexelToolSchema<FFindInput> Schema = TVexelToolSchema<FFindInput>()
 *                 .Required(TEXT("name"), &FFindInput::Name)
 *                 .Optional(TEXT("limit"), &FFindInput::Limit, {.Least = 1, .Most = 200});
 *             return Schema;
 *         }
 *     };
 */
template <typename RecordType>
class TVexelToolSchema : public FVexelToolSchema
{
public:
	template <typename T>
	TVexelToolSchema& Required(const TCHAR* Name, T RecordType::*Member, const FVexelToolRule& Rule = {})
	{
		return Add(Name, true, Member, Rule);
	}

	/** The member keeps its initial value when the argument is missing. */
	template <typename T>
	TVexelToolSchema& Optional(const TCHAR* Name, T RecordType::*Member, const FVexelToolRule& Rule = {})
	{
		return Add(Name, false, Member, Rule);
	}

	TVexelExpected<RecordType> Read(const FJsonObject& Object) const
	{
		RecordType Record;
		VEXEL_TRY_VOID(ReadRecord(Object, FString(), Record));
		return Record;
	}

	TVexelExpected<void> ReadRecord(const FJsonObject& Object, const FString& Path, RecordType& Out) const { return ReadInto(&Out, Object, Path); }

private:
	template <typename T>
	TVexelToolSchema& Add(const TCHAR* Name, bool bRequired, T RecordType::*Member, const FVexelToolRule& Rule)
	{
		using FValue = TVexelToolValue<T>;
		const auto ReadMember = [Member](const FJsonValue& Value, const FField& Field, const FString& Path, void* Record)
		{ return FValue::Read(Value, Field.Rule, Path, static_cast<RecordType*>(Record)->*Member); };
		Fields.Add({Name, bRequired, FValue::GetTypeName(), Rule, &FValue::Fits, ReadMember});
		return *this;
	}
};
