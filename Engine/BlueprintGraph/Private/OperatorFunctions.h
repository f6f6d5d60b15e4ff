#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"

class UFunction;

/** The library functions behind the operators: "Add_IntInt", "Add_VectorVector". Game thread; the libraries are declared at boot. */
struct FOperatorFunctions
{
	/** "Add" of "Add_IntInt". */
	static FName GetOperation(FName FunctionName);
	/** A library's function of an operation whose node takes any of its types: one node stands for the functions of all. */
	static bool IsPromotable(const UFunction& Function);
	/** The parameter of comparisons that is no operand. */
	static FName GetToleranceName();
	/**
	 * How far a value has to go to be of the parameter's type: 0 where it is, more for each step of promotion, negative where it cannot.
	 */
	static int32 CountPromotions(const FEdGraphPinType& Value, const FEdGraphPinType& Parameter);
	/** The types of a function's operands, and of its result at the end. */
	static TArray<FEdGraphPinType> GetTypes(const UFunction& Function, int32& OutOperands);
	/**
	 * The function of the operation that the operands suit best; null when they suit none. A wildcard suits any parameter. The
	 * result counts when all operands are wildcards; it may be one too. A function of two operands takes more as the second.
	 */
	static UFunction* FindBest(FName Operation, const TArray<FEdGraphPinType>& Operands, const FEdGraphPinType& Result);
	/** Functions of the libraries by name, whatever comes behind an underscore: "Clamp" finds "Clamp" and "Clamp_Int". */
	static const TArray<TWeakObjectPtr<UFunction>>& FindAll(FName Operation);
};
