#pragma once

#include "CoreMinimal.h"

class FProperty;
class UEnum;
class UScriptStruct;

/**
 * Reads a member's C++ initialiser into a value of its property: numbers and what can be reckoned from them, named constants,
 * enumerators, texts, constructors of Core's structs, and lists in braces. Calls and names that it does not know are refused.
 */
class FInitialiserReader
{
public:
	explicit FInitialiserReader(const FString& InText);

	/** Whether the whole text was understood; the value is undefined, but initialized, when it was not. All elements of a static array. */
	bool Read(const FProperty* Property, void* Value);

private:
	bool ReadElements(const FProperty* Property, void* Value);
	bool ReadValue(const FProperty* Property, void* Value);
	bool ReadScalar(const FProperty* Property, void* Value);
	bool ReadBool(bool& bOut);
	bool ReadEnumerator(const UEnum* Enum, int64& Out);
	bool ReadString(FString& Out);
	bool ReadText(FText& Out);
	bool ReadReference(const FProperty* Property, void* Value);
	bool ReadStruct(const UScriptStruct* Struct, void* Value);
	bool ReadMembers(const UScriptStruct* Struct, void* Value, const TCHAR* Close);
	bool ReadConstructor(const UScriptStruct* Struct, void* Value, const TCHAR* Close);
	bool ReadList(const FProperty* Property, void* Value);

	// Arithmetic, by precedence
	bool ReadNumber(long double& Out) { return ReadSum(Out); }
	bool ReadSum(long double& Out);
	bool ReadProduct(long double& Out);
	bool ReadOperand(long double& Out);
	bool ReadLiteral(long double& Out);

	void SkipBlanks();
	bool Peek(const TCHAR* Symbol);
	bool TakeIf(const TCHAR* Symbol);
	/** "A::B::C", without the arguments of a template. Empty when no name stands here. */
	FString TakeName();
	bool TakeQuoted(FString& Out);

	static constexpr int32 MaxDepth = 64;

	FString Text;
	const TCHAR* Position;
	int32 Depth = 0;
	/** A number that was read so far is no integer. */
	bool bHasFloat = false;
};
