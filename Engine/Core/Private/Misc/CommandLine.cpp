#include "Misc/CommandLine.h"

#include "Misc/Parse.h"

namespace
{
struct FCommandLineState
{
	FString Text;
	bool bInitialized = false;
};

FCommandLineState& GetState()
{
	static FCommandLineState* const State = new FCommandLineState;
	return *State;
}

FString Quote(const FString& Argument)
{
	if (!Argument.Contains(TEXT(" ")) || Argument.Contains(TEXT("\"")))
	{
		return Argument;
	}
	int32 Equals = INDEX_NONE;
	if (Argument.StartsWith(TEXT("-")) && Argument.FindChar(TEXT('='), Equals))
	{
		return Argument.Left(Equals + 1) + TEXT("\"") + Argument.Mid(Equals + 1) + TEXT("\"");
	}
	return TEXT("\"") + Argument + TEXT("\"");
}
}

const TCHAR* FCommandLine::Get()
{
	return *GetState().Text;
}

bool FCommandLine::IsInitialized()
{
	return GetState().bInitialized;
}

bool FCommandLine::Set(const TCHAR* NewCommandLine)
{
	GetState().Text = NewCommandLine;
	GetState().bInitialized = true;
	return true;
}

void FCommandLine::Append(const TCHAR* AppendString)
{
	GetState().Text += AppendString;
}

FString FCommandLine::BuildFromArgV(const TCHAR* Prefix, int32 ArgC, const TCHAR* const ArgV[], const TCHAR* Suffix)
{
	TArray<FString> Parts;
	if (Prefix != nullptr)
	{
		Parts.Add(Prefix);
	}
	for (int32 Index = 1; Index < ArgC; ++Index)
	{
		Parts.Add(Quote(ArgV[Index]));
	}
	if (Suffix != nullptr)
	{
		Parts.Add(Suffix);
	}
	return FString::Join(Parts, TEXT(" "));
}

void FCommandLine::Parse(const TCHAR* CmdLine, TArray<FString>& Tokens, TArray<FString>& Switches)
{
	FString Token;
	while (FParse::Token(CmdLine, Token, false))
	{
		if (Token.StartsWith(TEXT("-")) || Token.StartsWith(TEXT("/")))
		{
			Switches.Add(Token.Mid(1));
		}
		else
		{
			Tokens.Add(Token);
		}
	}
}
