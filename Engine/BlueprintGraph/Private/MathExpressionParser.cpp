#include "MathExpressionParser.h"

#include "Misc/Char.h"

namespace
{
constexpr int32 MaxLength = 4096;
constexpr int32 MaxDepth = 64;

struct FOperator
{
	const TCHAR* Text;
	/** A higher one binds more tightly. */
	int32 Precedence;
};

/** Longer operators stand before those that they begin with. */
constexpr FOperator BinaryOperators[] = {
	{TEXT("||"), 1},
	{TEXT("&&"), 2},
	{TEXT("=="), 6},
	{TEXT("!="), 6},
	{TEXT("<="), 7},
	{TEXT(">="), 7},
	{TEXT("|"), 3},
	{TEXT("^"), 4},
	{TEXT("&"), 5},
	{TEXT("<"), 7},
	{TEXT(">"), 7},
	{TEXT("+"), 8},
	{TEXT("-"), 8},
	{TEXT("*"), 9},
	{TEXT("/"), 9},
	{TEXT("%"), 9},
};

class FParser
{
public:
	explicit FParser(const FString& InText)
		: Text(InText)
	{
	}

	TUniquePtr<FMathExpressionPart> Parse(FString& OutError)
	{
		TUniquePtr<FMathExpressionPart> Root = ParseBinary(1, 0);
		SkipSpace();
		if (Root && Place < Text.Len())
		{
			Fail(TEXT("an operator"));
			Root.Reset();
		}
		OutError = Error;
		return Root;
	}

private:
	using FPart = TUniquePtr<FMathExpressionPart>;

	FPart ParseBinary(const int32 MinPrecedence, const int32 Depth)
	{
		FPart Left = ParseUnary(Depth + 1);
		while (Left)
		{
			const FOperator* const Operator = PeekOperator();
			if (!Operator || Operator->Precedence < MinPrecedence)
			{
				return Left;
			}
			Place += FCString::Strlen(Operator->Text);
			FPart Right = ParseBinary(Operator->Precedence + 1, Depth + 1);
			if (!Right)
			{
				return nullptr;
			}
			FPart Whole = Make(FMathExpressionPart::EKind::Binary, Operator->Text);
			Whole->Operands.Add(MoveTemp(Left));
			Whole->Operands.Add(MoveTemp(Right));
			Left = MoveTemp(Whole);
		}
		return Left;
	}

	FPart ParseUnary(const int32 Depth)
	{
		if (Depth > MaxDepth)
		{
			Error = FString::Printf(TEXT("The expression is nested too deeply at character %d"), Place + 1);
			return nullptr;
		}
		SkipSpace();
		const TCHAR Sign = Peek();
		if (Sign != TEXT('-') && Sign != TEXT('!') && Sign != TEXT('~') && Sign != TEXT('+'))
		{
			return ParseValue(Depth);
		}
		++Place;
		FPart Operand = ParseUnary(Depth + 1);
		if (!Operand || Sign == TEXT('+'))
		{
			return Operand;
		}
		if (Sign == TEXT('-') && Operand->Kind == FMathExpressionPart::EKind::Literal && FChar::IsDigit(Operand->Text[0]))
		{
			Operand->Text = TEXT("-") + Operand->Text;
			return Operand;
		}
		FPart Whole = Make(FMathExpressionPart::EKind::Unary, FString::Chr(Sign));
		Whole->Operands.Add(MoveTemp(Operand));
		return Whole;
	}

	FPart ParseValue(const int32 Depth)
	{
		const TCHAR First = Peek();
		if (First == TEXT('('))
		{
			++Place;
			FPart Inner = ParseBinary(1, Depth + 1);
			return Inner && Expect(TEXT(')')) ? MoveTemp(Inner) : nullptr;
		}
		if (FChar::IsDigit(First) || First == TEXT('.'))
		{
			return ParseNumber();
		}
		if (!FChar::IsAlpha(First) && First != TEXT('_'))
		{
			Fail(TEXT("a value"));
			return nullptr;
		}
		const int32 Start = Place;
		while (FChar::IsAlnum(Peek()) || Peek() == TEXT('_'))
		{
			++Place;
		}
		const FString Name = Text.Mid(Start, Place - Start);
		SkipSpace();
		if (Peek() == TEXT('('))
		{
			return ParseCall(Name, Depth);
		}
		const bool bIsBoolean = Name == TEXT("true") || Name == TEXT("false");
		return Make(bIsBoolean ? FMathExpressionPart::EKind::Literal : FMathExpressionPart::EKind::Name, Name);
	}

	FPart ParseNumber()
	{
		const int32 Start = Place;
		int32 NumPoints = 0;
		int32 NumDigits = 0;
		for (; FChar::IsDigit(Peek()) || Peek() == TEXT('.'); ++Place)
		{
			NumPoints += Peek() == TEXT('.') ? 1 : 0;
			NumDigits += Peek() == TEXT('.') ? 0 : 1;
		}
		const FString Number = Text.Mid(Start, Place - Start);
		// "2.0f" is what a programmer writes.
		Place += NumPoints > 0 && (Peek() == TEXT('f') || Peek() == TEXT('F')) ? 1 : 0;
		if (NumPoints > 1 || NumDigits == 0 || FChar::IsAlpha(Peek()))
		{
			Error = FString::Printf(TEXT("'%s' at character %d is no number"), *Number, Start + 1);
			return nullptr;
		}
		return Make(FMathExpressionPart::EKind::Literal, Number);
	}

	FPart ParseCall(const FString& Name, const int32 Depth)
	{
		FPart Call = Make(FMathExpressionPart::EKind::Call, Name);
		++Place;
		SkipSpace();
		if (Peek() == TEXT(')'))
		{
			++Place;
			return Call;
		}
		while (true)
		{
			FPart Argument = ParseBinary(1, Depth + 1);
			if (!Argument)
			{
				return nullptr;
			}
			Call->Operands.Add(MoveTemp(Argument));
			SkipSpace();
			if (Peek() != TEXT(','))
			{
				return Expect(TEXT(')')) ? MoveTemp(Call) : nullptr;
			}
			++Place;
		}
	}

	const FOperator* PeekOperator()
	{
		SkipSpace();
		for (const FOperator& Operator : BinaryOperators)
		{
			if (FStringView(Text).RightChop(Place).StartsWith(Operator.Text))
			{
				return &Operator;
			}
		}
		return nullptr;
	}

	bool Expect(const TCHAR Wanted)
	{
		SkipSpace();
		if (Peek() != Wanted)
		{
			Fail(*FString::Printf(TEXT("'%s'"), *FString::Chr(Wanted)));
			return false;
		}
		++Place;
		return true;
	}

	void Fail(const TCHAR* Wanted)
	{
		Error = Error.IsEmpty() ? FString::Printf(TEXT("Expected %s at character %d"), Wanted, Place + 1) : Error;
	}

	static FPart Make(const FMathExpressionPart::EKind Kind, const FString& PartText)
	{
		FPart Part = MakeUnique<FMathExpressionPart>();
		Part->Kind = Kind;
		Part->Text = PartText;
		return Part;
	}

	TCHAR Peek() const { return Place < Text.Len() ? Text[Place] : TEXT('\0'); }

	void SkipSpace()
	{
		while (FChar::IsWhitespace(Peek()))
		{
			++Place;
		}
	}

	const FString& Text;
	int32 Place = 0;
	FString Error;
};
}

TUniquePtr<FMathExpressionPart> ParseMathExpression(const FString& Text, FString& OutError)
{
	if (Text.Len() > MaxLength)
	{
		OutError = FString::Printf(TEXT("The expression has %d characters; it may have %d"), Text.Len(), MaxLength);
		return nullptr;
	}
	return FParser(Text).Parse(OutError);
}
