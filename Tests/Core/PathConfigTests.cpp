#include "Containers/UnrealString.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::string Values(const FConfigFile& File, const TCHAR* Key)
{
	TArray<FString> Found;
	if (const FConfigSection* const Section = File.FindSection(TEXT("S")))
	{
		Section->MultiFind(Key, Found);
	}
	return Utf8(FString::Join(Found, TEXT("|")));
}
}

TEST(PathTables, NothingOutsideIsUnderADirectory)
{
	struct FCase
	{
		const TCHAR* Path;
		const TCHAR* Directory;
		bool bUnder;
	};
	const FCase Cases[] = {
		{TEXT("/P/a"), TEXT("/P"), true},
		{TEXT("/P/a"), TEXT("/P/"), true},
		{TEXT("/P"), TEXT("/P"), true},
		{TEXT("/P//a/./b"), TEXT("/P"), true},
		{TEXT("/P/../P/a"), TEXT("/P"), true},
		{TEXT("/P\\a"), TEXT("/P"), true},
		{TEXT("/Pa"), TEXT("/P"), false},
		{TEXT("/p/a"), TEXT("/P"), false},
		{TEXT("/P/.."), TEXT("/P"), false},
		{TEXT("/P/../a"), TEXT("/P"), false},
		{TEXT("/P/a/../../b"), TEXT("/P"), false},
		{TEXT("/P\\..\\a"), TEXT("/P"), false},
		{TEXT("/P/../../etc/passwd"), TEXT("/P"), false},
		{TEXT("/P/../../../P/a"), TEXT("/Q"), false},
		{TEXT("/"), TEXT("/P"), false},
		{TEXT("/P/..."), TEXT("/P"), true},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(FPaths::IsUnderDirectory(Case.Path, Case.Directory), Case.bUnder) << Utf8(Case.Path) << " under " << Utf8(Case.Directory);
	}
}

TEST(PathTables, RelativePathsLeadBack)
{
	struct FCase
	{
		const TCHAR* Path;
		const TCHAR* Base;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT("/A/B/c.x"), TEXT("/A/B/"), "c.x"},
		{TEXT("/A/B/c.x"), TEXT("/A/B"), "B/c.x"},
		{TEXT("/A/c.x"), TEXT("/A/B/C/"), "../../c.x"},
		{TEXT("/X/c.x"), TEXT("/A/"), "../X/c.x"},
		{TEXT("/A/B/"), TEXT("/A/"), "B/"},
		{TEXT("/A//B/./c"), TEXT("/A/X/../"), "B/c"},
		{TEXT("/a/c"), TEXT("/A/"), "../a/c"},
	};
	for (const FCase& Case : Cases)
	{
		FString Path = Case.Path;
		ASSERT_TRUE(FPaths::MakePathRelativeTo(Path, Case.Base));
		EXPECT_EQ(Utf8(Path), Case.Expected) << Utf8(Case.Path) << " from " << Utf8(Case.Base);
		EXPECT_TRUE(FPaths::IsSamePath(FPaths::ConvertRelativePathToFull(FPaths::GetPath(Case.Base) + TEXT("/"), Path), Case.Path));
	}
}

TEST(PathTables, CollapsingIsDoneOnce)
{
	std::mt19937 Random(1);
	for (int32 Round = 0; Round < 5000; ++Round)
	{
		FString Path = Random() % 2 == 0 ? TEXT("/") : TEXT("");
		for (uint32 Count = Random() % 7; Count > 0; --Count)
		{
			static const TCHAR* const Parts[] = {TEXT("a"), TEXT("b"), TEXT(".."), TEXT("."), TEXT("..."), TEXT("c.d")};
			Path += FString(Parts[Random() % UE_ARRAY_COUNT(Parts)]) + (Random() % 5 == 0 ? TEXT("//") : TEXT("/"));
		}
		FString Collapsed = Path;
		FPaths::RemoveDuplicateSlashes(Collapsed);
		const bool bCollapsed = FPaths::CollapseRelativeDirectories(Collapsed);
		FString Again = Collapsed;
		EXPECT_EQ(FPaths::CollapseRelativeDirectories(Again), bCollapsed) << Utf8(Path);
		EXPECT_EQ(Utf8(Again), Utf8(Collapsed)) << Utf8(Path);
		EXPECT_EQ(bCollapsed, !(TEXT("/") + Collapsed + TEXT("/")).Contains(TEXT("/../"))) << Utf8(Path);
		EXPECT_EQ(Collapsed.StartsWith(TEXT("/")), Path.StartsWith(TEXT("/"))) << Utf8(Path);
	}
}

TEST(ConfigOperators, ApplyInTheOrderOfTheirLines)
{
	struct FCase
	{
		const TCHAR* Lines;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT("+K=a\n+K=b\n+K=a"), "a|b"},
		{TEXT(".K=a\n.K=a"), "a|a"},
		{TEXT("+K=/Dir\n+K=/dir"), "/Dir|/dir"},
		{TEXT("+K=/Dir\n+K=/dir\n-K=/DIR"), "/Dir|/dir"},
		{TEXT("+K=/Dir\n+K=/dir\n-K=/dir"), "/Dir"},
		{TEXT("+K=a\n+k=b"), "a|b"},
		{TEXT("+K=a\n+K=b\nK=c"), "c"},
		{TEXT("K=c\n+K=a\n!K=ClearArray\n+K=z"), "z"},
		{TEXT("!K"), ""},
		{TEXT("K=a=b"), "a=b"},
		{TEXT("K = a ; b"), "a ; b"},
		{TEXT("K=a // b"), "a"},
		{TEXT("K=http://x"), "http:"},
		{TEXT("K=\"http://x\" // b"), "http://x"},
		{TEXT("K=(Url=\"http://x\",N=1)"), "(Url=\"http://x\",N=1)"},
		{TEXT("K=(A=1, \\\n\tB=2)\n+K=c"), "(A=1, \tB=2)|c"},
		{TEXT("K=(A=1, \\\r\nB=2)"), "(A=1, B=2)"},
		{TEXT("K={(A=1, // one\n\nB=2)\n}\n+K=c"), "(A=1, B=2)|c"},
		{TEXT("K=\"{a}\""), "{a}"},
		{TEXT("; what's \"this {\nK=a"), "a"},
		{TEXT("  ;K=b \\\nK=a"), "a"},
		{TEXT(";K=a\n//K=b\n=c\n+=d\nK"), ""},
		{TEXT("K=\"a\\\\b\\n\\\"\""), "a\\b\n\""},
		{TEXT("K=\"never closed"), "never closed"},
		{TEXT("[Other]\nK=a"), ""},
		{TEXT("K=a\r\n[Other]\r\nK=b\r\n[s]\r\n+K=c"), "a|c"},
	};
	for (const FCase& Case : Cases)
	{
		FConfigFile File;
		File.CombineFromBuffer(FString(TEXT("K=before every section\n[S]\n")) + Case.Lines);
		EXPECT_EQ(Values(File, TEXT("K")), Case.Expected) << Utf8(Case.Lines);
	}
}

TEST(ConfigOperators, WhatIsWrittenOverALayerReadsBack)
{
	static const TCHAR* const Choices[] = {TEXT("a"), TEXT("A"), TEXT(""), TEXT(" edge "), TEXT("\"q\""), TEXT("tail\\"),
		TEXT("two\nlines"), TEXT("x=y"), TEXT("; no comment"), TEXT("[no section]"), TEXT("\ttab"), TEXT("+plus"), TEXT("\u00A0"),
		TEXT("in \"the\" middle\\n"), TEXT("http://x"), TEXT("\"a\\\" // {b"), TEXT("x \"// {\" y"), TEXT("{"), TEXT("it's")};
	static const TCHAR* const Keys[] = {TEXT("K"), TEXT("L"), TEXT("M.N")};
	std::mt19937 Random(2);
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		FConfigFile Base;
		FConfigFile Merged;
		for (FConfigFile* const File : {&Base, &Merged})
		{
			for (uint32 Count = Random() % 6; Count > 0; --Count)
			{
				File->FindOrAddSection(TEXT("S")).Add(Keys[Random() % UE_ARRAY_COUNT(Keys)], Choices[Random() % UE_ARRAY_COUNT(Choices)]);
			}
		}
		const FString Text = Merged.ToText(Base);
		FConfigFile Read = Base;
		Read.CombineFromBuffer(Text);
		for (const TCHAR* const Key : Keys)
		{
			ASSERT_EQ(Values(Read, Key), Values(Merged, Key)) << Utf8(Text);
		}
		ASSERT_TRUE(Read.ToText(Merged).IsEmpty()) << Utf8(Read.ToText(Merged));
	}
}
