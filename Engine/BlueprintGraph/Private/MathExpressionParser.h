#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/UniquePtr.h"

/** A part of a parsed expression. */
struct FMathExpressionPart
{
	enum class EKind : uint8
	{
		/** A number, "true" or "false". */
		Literal,
		Name,
		/** An operator before its operand, between its operands, or a function before its arguments. */
		Unary,
		Binary,
		Call
	};

	EKind Kind = EKind::Literal;
	/** The number, the name or the operator as it was written. */
	FString Text;
	TArray<TUniquePtr<FMathExpressionPart>> Operands;
};

/** Parses "sin(x) * (2 + y)". Null, with what is wrong and where, for anything else; long and deep expressions are refused too. */
TUniquePtr<FMathExpressionPart> ParseMathExpression(const FString& Text, FString& OutError);
