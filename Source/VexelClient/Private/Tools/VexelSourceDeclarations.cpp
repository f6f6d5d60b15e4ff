#include "Tools/VexelSourceDeclarations.h"

#include "Tools/VexelSourceLexer.h"

namespace
{
bool IsTypeKeyword(const FVexelSourceToken& Token)
{
	return Token.Is(TEXT("class")) || Token.Is(TEXT("struct")) || Token.Is(TEXT("union")) || Token.Is(TEXT("enum"));
}

const TCHAR* GetKind(const FVexelSourceToken& Keyword)
{
	for (const TCHAR* const Kind : {TEXT("class"), TEXT("struct"), TEXT("union"), TEXT("enum")})
	{
		if (Keyword.Is(Kind))
		{
			return Kind;
		}
	}
	return TEXT("");
}

/** "UFUNCTION", "GAME_API": words that stand for something else. */
bool IsMacroName(const FVexelSourceToken& Token)
{
	return Token.bIdentifier && Token.Text.Len() > 1 && FString(Token.Text).ToUpper().Equals(FString(Token.Text), ESearchCase::CaseSensitive);
}

/** What stands between two ends of declarations: the words before a ';' or a '{'. */
class FStatement
{
public:
	int32 Num() const { return Tokens.Num(); }
	void Add(const FVexelSourceToken& Token) { Tokens.Add(Token); }
	void Reset() { Tokens.Reset(); }
	const FVexelSourceToken& First() const { return Tokens[0]; }
	const FVexelSourceToken& Last() const { return Tokens.Last(); }
	bool BeginsWith(FStringView Word) const { return !Tokens.IsEmpty() && Tokens[0].Is(Word); }

	/** Whether it is a macro that stands alone, without a ';': "GENERATED_BODY()". */
	bool IsBodyMacro() const { return Tokens.Num() > 2 && Tokens[0].Text.StartsWith(TEXT("GENERATED_")) && Last().Is(TEXT(")")); }

	/** Whether it is a name to be followed by a ':' that ends it: "public", "case". */
	bool IsLabel() const
	{
		return Tokens.Num() == 1 && (Tokens[0].Is(TEXT("public")) || Tokens[0].Is(TEXT("protected")) || Tokens[0].Is(TEXT("private")));
	}

	/** Index of the first token outside brackets that fits; INDEX_NONE without one. Template arguments count as brackets. */
	template <typename PredicateType>
	int32 FindOutside(PredicateType Fits, int32 Begin = 0) const
	{
		int32 Depth = 0;
		for (int32 Index = Begin; Index < Tokens.Num(); ++Index)
		{
			const FVexelSourceToken& Token = Tokens[Index];
			if (Depth == 0 && Fits(Index))
			{
				return Index;
			}
			const bool bTemplate = Token.Is(TEXT("<")) && Index > 0 && Tokens[Index - 1].bIdentifier && !Tokens[Index - 1].Is(TEXT("operator"));
			if (Token.Is(TEXT("(")) || Token.Is(TEXT("[")) || bTemplate || (Token.Is(TEXT("<")) && Depth > 0))
			{
				++Depth;
			}
			else if (Depth > 0 && (Token.Is(TEXT(")")) || Token.Is(TEXT("]")) || Token.Is(TEXT(">"))))
			{
				--Depth;
			}
		}
		return INDEX_NONE;
	}

	/** The keyword of a type's declaration, or INDEX_NONE. */
	int32 FindTypeKeyword() const
	{
		const int32 Keyword = FindOutside([this](int32 Index)
			{ return IsTypeKeyword(Tokens[Index]); });
		// "struct FPoint MakePoint() {": a function that answers one.
		return Keyword != INDEX_NONE && FindFunctionParameters(Keyword) == INDEX_NONE ? Keyword : INDEX_NONE;
	}

	const FVexelSourceToken& operator[](int32 Index) const { return Tokens[Index]; }

	/** The name behind a type's keyword; empty for a type without one. */
	FString GetTypeName(int32 Keyword) const
	{
		const int32 End = FindOutside([this](int32 Index)
			{ return Tokens[Index].Is(TEXT(":")); },
			Keyword);
		FString Name;
		for (int32 Index = Keyword + 1; Index < (End == INDEX_NONE ? Tokens.Num() : End); ++Index)
		{
			const FVexelSourceToken& Token = Tokens[Index];
			// Behind the name stand the arguments of a specialisation; before it macros and attributes.
			if (Token.Is(TEXT("<")))
			{
				break;
			}
			if (Token.bIdentifier && !IsTypeKeyword(Token) && !Token.Is(TEXT("final")))
			{
				const bool bQualified = Index > 1 && Tokens[Index - 1].Is(TEXT("::"));
				Name = bQualified ? Name + TEXT("::") + FString(Token.Text) : FString(Token.Text);
			}
		}
		return Name;
	}

	/** The '(' of a function's parameters; INDEX_NONE for what is no function. */
	int32 FindFunctionParameters(int32 Begin = 0) const
	{
		const int32 Parameters = FindOutside([this](int32 Index)
			{ return (Tokens[Index].Is(TEXT("=")) && !IsBehindOperator(Index)) || (Tokens[Index].Is(TEXT("(")) && IsFunctionName(Index - 1)); },
			Begin);
		return Parameters != INDEX_NONE && Tokens[Parameters].Is(TEXT("(")) ? Parameters : INDEX_NONE;
	}

	FString GetFunctionName(int32 Parameters) const
	{
		int32 Begin = Parameters - 1;
		for (int32 Back = 1; Back <= 3 && Parameters - Back >= 0; ++Back)
		{
			Begin = Tokens[Parameters - Back].Is(TEXT("operator")) ? Parameters - Back : Begin;
		}
		if (Begin > 0 && Tokens[Begin - 1].Is(TEXT("~")))
		{
			--Begin;
		}
		while (Begin > 1 && Tokens[Begin - 1].Is(TEXT("::")) && Tokens[Begin - 2].bIdentifier)
		{
			Begin -= 2;
		}
		FString Name;
		for (int32 Index = Begin; Index < Parameters; ++Index)
		{
			Name += FString(Tokens[Index].Text);
		}
		return Name;
	}

private:
	/** Whether the token, or one of the two before it, is "operator". */
	bool IsBehindOperator(int32 Index) const
	{
		for (int32 Back = 0; Back < 3 && Index - Back >= 0; ++Back)
		{
			if (Tokens[Index - Back].Is(TEXT("operator")))
			{
				return true;
			}
		}
		return false;
	}

	/** A word that is no macro, or the signs behind "operator". */
	bool IsFunctionName(int32 Index) const
	{
		return IsBehindOperator(Index) ||
			(Index >= 0 && Tokens[Index].bIdentifier && !IsMacroName(Tokens[Index]) && !Tokens[Index].Is(TEXT("alignas")) &&
				!Tokens[Index].Is(TEXT("decltype")) && !Tokens[Index].Is(TEXT("requires")));
	}

	TArray<FVexelSourceToken> Tokens;
};

/** Goes through a file's declarations. Scopes are on a list, so that no nesting is too deep. */
class FDeclarationReader
{
public:
	explicit FDeclarationReader(FStringView Text)
		: Lexer(Text)
	{
	}

	TArray<FVexelSourceDeclaration> Read()
	{
		FVexelSourceToken Token;
		while (Lexer.Next(Token))
		{
			Take(Token);
		}
		return MoveTemp(Found);
	}

private:
	/** A namespace or type whose declarations are being read. */
	struct FScope
	{
		/** With the names around it. */
		FString Name;
		/** Index of the type in Found; INDEX_NONE for a namespace. */
		int32 Declaration = INDEX_NONE;
	};

	void Take(const FVexelSourceToken& Token)
	{
		NumOpen += Token.Is(TEXT("(")) ? 1 : Token.Is(TEXT(")")) && NumOpen > 0 ? -1
																				: 0;
		if (Token.Is(TEXT("{")))
		{
			OpenBrace(Token);
		}
		else if (Token.Is(TEXT("}")))
		{
			CloseScope(Token);
		}
		else if (Token.Is(TEXT(";")))
		{
			EndStatement(Token);
		}
		else if (!(Token.Is(TEXT(":")) && Statement.IsLabel()))
		{
			if (Statement.IsBodyMacro())
			{
				Statement.Reset();
			}
			Statement.Add(Token);
		}
		else
		{
			Statement.Reset();
		}
	}

	void OpenBrace(const FVexelSourceToken& Brace)
	{
		if (Statement.BeginsWith(TEXT("namespace")) || Statement.BeginsWith(TEXT("inline")) || Statement.BeginsWith(TEXT("extern")))
		{
			if (OpenNamespace())
			{
				return;
			}
		}
		const int32 Keyword = Statement.FindTypeKeyword();
		if (Keyword != INDEX_NONE)
		{
			OpenType(Keyword, Brace);
			return;
		}
		const int32 Parameters = Statement.FindFunctionParameters();
		if (Parameters != INDEX_NONE && NumOpen == 0 && !IsMemberInitializer(Parameters))
		{
			AddFunction(Parameters, SkipBlock(Brace.Line), true);
			Statement.Reset();
			return;
		}
		// The value of a variable or of a member: the statement goes on behind it.
		SkipBlock(Brace.Line);
	}

	bool OpenNamespace()
	{
		FString Name;
		bool bNamespace = false;
		for (int32 Index = 0; Index < Statement.Num(); ++Index)
		{
			const FVexelSourceToken& Token = Statement[Index];
			if (bNamespace && Token.bIdentifier && !IsMacroName(Token))
			{
				Name += (Name.IsEmpty() ? TEXT("") : TEXT("::")) + FString(Token.Text);
			}
			bNamespace |= Token.Is(TEXT("namespace"));
		}
		const bool bLinkage = Statement.BeginsWith(TEXT("extern")) && Statement.Num() == 2;
		if (!bNamespace && !bLinkage)
		{
			return false;
		}
		Scopes.Add({Qualify(Name), INDEX_NONE});
		Statement.Reset();
		return true;
	}

	void OpenType(int32 Keyword, const FVexelSourceToken& Brace)
	{
		const FString Name = Statement.GetTypeName(Keyword);
		FScope Scope = {Qualify(Name), INDEX_NONE};
		if (!Name.IsEmpty())
		{
			Scope.Declaration = Add(GetKind(Statement[Keyword]), Scope.Name, Statement.First().CommentLine, true);
		}
		const bool bEnum = Statement[Keyword].Is(TEXT("enum"));
		if (bEnum)
		{
			// Its values are no declarations.
			const int32 LastLine = SkipBlock(Brace.Line);
			if (Scope.Declaration != INDEX_NONE)
			{
				Found[Scope.Declaration].LastLine = LastLine;
			}
		}
		else
		{
			Scopes.Add(MoveTemp(Scope));
		}
		Statement.Reset();
	}

	void CloseScope(const FVexelSourceToken& Brace)
	{
		Statement.Reset();
		NumOpen = 0;
		if (Scopes.IsEmpty())
		{
			return;
		}
		const FScope Scope = Scopes.Pop();
		if (Scope.Declaration != INDEX_NONE)
		{
			Found[Scope.Declaration].LastLine = Brace.Line;
		}
	}

	void EndStatement(const FVexelSourceToken& Semicolon)
	{
		const bool bNoDeclaration = Statement.BeginsWith(TEXT("friend")) || Statement.BeginsWith(TEXT("using")) ||
			Statement.BeginsWith(TEXT("typedef")) || Statement.BeginsWith(TEXT("return"));
		const int32 Parameters = bNoDeclaration ? INDEX_NONE : Statement.FindFunctionParameters();
		// A function has a type before its name, or is a class's own.
		if (Parameters > 1 || (Parameters == 1 && !Scopes.IsEmpty() && Scopes.Last().Declaration != INDEX_NONE))
		{
			AddFunction(Parameters, Semicolon.Line, false);
		}
		Statement.Reset();
		NumOpen = 0;
	}

	/** Whether a '{' behind a constructor's parameters gives a member its value: ") : Member{". */
	bool IsMemberInitializer(int32 Parameters) const
	{
		const int32 Colon = Statement.FindOutside([this](int32 Index)
			{ return Statement[Index].Is(TEXT(":")); },
			Parameters);
		return Colon != INDEX_NONE && (Statement.Last().bIdentifier || Statement.Last().Is(TEXT(">")));
	}

	/** Answers the line of the matching '}', or the file's last. */
	int32 SkipBlock(int32 LastLine)
	{
		FVexelSourceToken Token;
		int32 Depth = 1;
		while (Depth > 0 && Lexer.Next(Token))
		{
			Depth += Token.Is(TEXT("{")) ? 1 : 0;
			Depth -= Token.Is(TEXT("}")) ? 1 : 0;
			LastLine = Token.Line;
		}
		return LastLine;
	}

	void AddFunction(int32 Parameters, int32 LastLine, bool bDefinition)
	{
		const FString Name = Statement.GetFunctionName(Parameters);
		const int32 Index = Add(TEXT("function"), Qualify(Name), Statement.First().CommentLine, bDefinition);
		Found[Index].LastLine = LastLine;
	}

	int32 Add(const TCHAR* Kind, const FString& Name, int32 FirstLine, bool bDefinition)
	{
		return Found.Add({Kind, Name, FirstLine, FirstLine, bDefinition});
	}

	FString Qualify(const FString& Name) const
	{
		const FString Around = Scopes.IsEmpty() ? FString() : Scopes.Last().Name;
		return Around.IsEmpty() || Name.IsEmpty() ? Around + Name : Around + TEXT("::") + Name;
	}

	FVexelSourceLexer Lexer;
	FStatement Statement;
	/** Round brackets that are open in the statement. */
	int32 NumOpen = 0;
	TArray<FScope> Scopes;
	TArray<FVexelSourceDeclaration> Found;
};
}

TArray<FVexelSourceDeclaration> ReadVexelSourceDeclarations(FStringView Text)
{
	return FDeclarationReader(Text).Read();
}
