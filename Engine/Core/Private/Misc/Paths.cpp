#include "Misc/Paths.h"

#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "HAL/PlatformFileManager.h"
#include "HAL/PlatformProcess.h"
#include "Internationalization/Text.h"
#include "Misc/Char.h"
#include "Misc/Guid.h"

#include <climits>
#include <unistd.h>

namespace
{
struct FKnownPaths
{
	FString ProjectFile;
	FString EngineDir;
	FString SavedDir;
};

FKnownPaths& GetKnownPaths()
{
	static FKnownPaths* const Paths = new FKnownPaths;
	return *Paths;
}

FString WithSlash(FString Dir)
{
	FPaths::NormalizeDirectoryName(Dir);
	return Dir.EndsWith(TEXT("/")) ? Dir : Dir + TEXT("/");
}

bool IsSlash(TCHAR Char)
{
	return Char == TEXT('/') || Char == TEXT('\\');
}

/** Place of the last slash, or INDEX_NONE. */
int32 FindLastSlash(const FString& Path)
{
	for (int32 Index = Path.Len() - 1; Index >= 0; --Index)
	{
		if (IsSlash(Path[Index]))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Place of the dot of the last part's extension, or INDEX_NONE. */
int32 FindExtensionDot(const FString& Path)
{
	const int32 Slash = FindLastSlash(Path);
	for (int32 Index = Path.Len() - 1; Index > Slash; --Index)
	{
		if (Path[Index] == TEXT('.'))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

FString GetCurrentDirectory()
{
	char Path[PATH_MAX] = {};
	return getcwd(Path, sizeof(Path)) != nullptr ? WithSlash(UTF8_TO_TCHAR(Path)) : FString(TEXT("/"));
}

constexpr const TCHAR* InvalidCharacters = TEXT("/?:&\\*\"<>|%#@^");

bool IsInvalidInFileName(TCHAR Char)
{
	return Char < TEXT(' ') || FCString::Strchr(InvalidCharacters, Char) != nullptr;
}
}

void FPaths::SetProjectFilePath(const FString& NewGameProjectFilePath)
{
	GetKnownPaths().ProjectFile = NewGameProjectFilePath.IsEmpty() ? FString() : ConvertRelativePathToFull(NewGameProjectFilePath);
}

FString FPaths::GetProjectFilePath()
{
	return GetKnownPaths().ProjectFile;
}

bool FPaths::IsProjectFilePathSet()
{
	return !GetKnownPaths().ProjectFile.IsEmpty();
}

void FPaths::SetEngineDir(const FString& Dir)
{
	GetKnownPaths().EngineDir = WithSlash(ConvertRelativePathToFull(Dir));
}

void FPaths::SetProjectSavedDir(const FString& Dir)
{
	GetKnownPaths().SavedDir = Dir.IsEmpty() ? FString() : WithSlash(ConvertRelativePathToFull(Dir));
}

FString FPaths::EngineDir()
{
	const FString& Dir = GetKnownPaths().EngineDir;
	return Dir.IsEmpty() ? FString(FPlatformProcess::BaseDir()) : Dir;
}

FString FPaths::RootDir()
{
	return GetPath(EngineDir().LeftChop(1)) + TEXT("/");
}

FString FPaths::LaunchDir()
{
	return FPlatformProcess::BaseDir();
}

FString FPaths::ProjectDir()
{
	const FString& File = GetKnownPaths().ProjectFile;
	return File.IsEmpty() ? GetCurrentDirectory() : WithSlash(GetPath(File));
}

FString FPaths::ProjectSavedDir()
{
	const FString& Dir = GetKnownPaths().SavedDir;
	return Dir.IsEmpty() ? ProjectDir() + TEXT("Saved/") : Dir;
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = FindExtensionDot(InPath);
	return Dot == INDEX_NONE ? FString() : InPath.Mid(bIncludeDot ? Dot : Dot + 1);
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(FindLastSlash(InPath) + 1);
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const FString Path = bRemovePath ? GetCleanFilename(InPath) : InPath;
	const int32 Dot = FindExtensionDot(Path);
	return Dot == INDEX_NONE ? Path : Path.Left(Dot);
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Slash = FindLastSlash(InPath);
	if (Slash == 0)
	{
		return InPath.Len() == 1 ? FString() : FString(TEXT("/"));
	}
	return Slash == INDEX_NONE ? FString() : InPath.Left(Slash);
}

FString FPaths::GetPathLeaf(const FString& InPath)
{
	FString Path = InPath;
	NormalizeDirectoryName(Path);
	return GetCleanFilename(Path);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	return FindExtensionDot(InPath) == INDEX_NONE ? InPath : SetExtension(InPath, InNewExtension);
}

FString FPaths::SetExtension(const FString& InPath, const FString& InNewExtension)
{
	const FString Base = GetBaseFilename(InPath, false);
	if (InNewExtension.IsEmpty())
	{
		return Base;
	}
	return InNewExtension.StartsWith(TEXT(".")) ? Base + InNewExtension : Base + TEXT(".") + InNewExtension;
}

bool FPaths::FileExists(const FString& InPath)
{
	return IPlatformFile::GetPlatformPhysical().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IPlatformFile::GetPlatformPhysical().DirectoryExists(*InPath);
}

bool FPaths::IsDrive(const FString& InPath)
{
	const bool bHasLetter = InPath.Len() >= 2 && FChar::IsAlpha(InPath[0]) && InPath[1] == TEXT(':');
	return bHasLetter && (InPath.Len() == 2 || (InPath.Len() == 3 && IsSlash(InPath[2])));
}

bool FPaths::IsRelative(const FString& InPath)
{
	const bool bHasDrive = InPath.Len() >= 2 && FChar::IsAlpha(InPath[0]) && InPath[1] == TEXT(':');
	return InPath.IsEmpty() || !(IsSlash(InPath[0]) || bHasDrive);
}

bool FPaths::IsSamePath(const FString& PathA, const FString& PathB)
{
	FString FullA = ConvertRelativePathToFull(PathA);
	FString FullB = ConvertRelativePathToFull(PathB);
	NormalizeDirectoryName(FullA);
	NormalizeDirectoryName(FullB);
	return FullA.Equals(FullB, ESearchCase::CaseSensitive);
}

bool FPaths::IsUnderDirectory(const FString& InPath, const FString& InDirectory)
{
	// A path that climbs above the root keeps its "..", and could begin with the directory and still lead out of it.
	FString Full = ConvertRelativePathToFull(InPath);
	return CollapseRelativeDirectories(Full) &&
		WithSlash(Full).StartsWith(WithSlash(ConvertRelativePathToFull(InDirectory)), ESearchCase::CaseSensitive);
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceInline(TEXT("\\"), TEXT("/"));
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	while (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")))
	{
		InPath.LeftChopInline(1);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	const bool bAbsolute = InPath.StartsWith(TEXT("/"));
	const bool bFolder = InPath.Len() > 1 && InPath.EndsWith(TEXT("/"));
	TArray<FString> Parts;
	InPath.ParseIntoArray(Parts, TEXT("/"), true);
	TArray<FString> Kept;
	for (const FString& Part : Parts)
	{
		if (Part == TEXT(".."))
		{
			if (!Kept.IsEmpty() && Kept.Last() != TEXT(".."))
			{
				Kept.Pop();
			}
			else if (bAbsolute)
			{
				return false;
			}
			else
			{
				Kept.Add(Part);
			}
		}
		else if (Part != TEXT("."))
		{
			Kept.Add(Part);
		}
	}
	const bool bClimbs = !Kept.IsEmpty() && Kept[0] == TEXT("..");
	InPath = (bAbsolute ? TEXT("/") : TEXT("")) + FString::Join(Kept, TEXT("/")) + (bFolder && !Kept.IsEmpty() ? TEXT("/") : TEXT(""));
	return bAbsolute || !bClimbs;
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	while (InPath.Contains(TEXT("//")))
	{
		InPath.ReplaceInline(TEXT("//"), TEXT("/"));
	}
}

void FPaths::MakeStandardFilename(FString& InPath)
{
	NormalizeFilename(InPath);
	RemoveDuplicateSlashes(InPath);
	CollapseRelativeDirectories(InPath);
}

bool FPaths::MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo)
{
	const FString Target = ConvertRelativePathToFull(InPath);
	const FString Base = ConvertRelativePathToFull(FString(InRelativeTo));
	TArray<FString> TargetParts;
	TArray<FString> BaseParts;
	Target.ParseIntoArray(TargetParts, TEXT("/"), true);
	GetPath(Base).ParseIntoArray(BaseParts, TEXT("/"), true);
	if (IsRelative(Target) != IsRelative(Base))
	{
		return false;
	}
	int32 NumCommon = 0;
	while (NumCommon < TargetParts.Num() && NumCommon < BaseParts.Num() &&
		TargetParts[NumCommon].Equals(BaseParts[NumCommon], ESearchCase::CaseSensitive))
	{
		++NumCommon;
	}
	FString Result;
	for (int32 Index = NumCommon; Index < BaseParts.Num(); ++Index)
	{
		Result += TEXT("../");
	}
	for (int32 Index = NumCommon; Index < TargetParts.Num(); ++Index)
	{
		Result += TargetParts[Index];
		Result += Index + 1 < TargetParts.Num() || Target.EndsWith(TEXT("/")) ? TEXT("/") : TEXT("");
	}
	InPath = Result;
	return true;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(GetCurrentDirectory(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Path = IsRelative(InPath) ? Combine(BasePath, InPath) : InPath;
	NormalizeFilename(Path);
	RemoveDuplicateSlashes(Path);
	CollapseRelativeDirectories(Path);
	return Path;
}

void FPaths::Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart)
{
	PathPart = GetPath(InPath);
	FilenamePart = GetBaseFilename(InPath);
	ExtensionPart = GetExtension(InPath);
}

FString FPaths::CreateTempFilename(const TCHAR* Path, const TCHAR* Prefix, const TCHAR* Extension)
{
	FString Candidate;
	do
	{
		Candidate = Combine(FString(Path), FString(Prefix) + FGuid::NewGuid().ToString() + Extension);
	} while (FileExists(Candidate));
	return Candidate;
}

FString FPaths::GetInvalidFileSystemChars()
{
	return InvalidCharacters;
}

FString FPaths::MakeValidFileName(const FString& InString, TCHAR InReplacementChar)
{
	FString Result;
	for (const TCHAR Char : InString)
	{
		if (!IsInvalidInFileName(Char))
		{
			Result += Char;
		}
		else if (InReplacementChar != 0)
		{
			Result += InReplacementChar;
		}
	}
	return Result;
}

bool FPaths::ValidatePath(const FString& InPath, FText* OutReason)
{
	for (const TCHAR Char : InPath)
	{
		if (!IsSlash(Char) && Char != TEXT(':') && IsInvalidInFileName(Char))
		{
			if (OutReason != nullptr)
			{
				*OutReason = FText::FromString(FString::Printf(TEXT("Path may not contain the character '%c'"), Char));
			}
			return false;
		}
	}
	return true;
}

void FPaths::AppendPart(FString& Path, const FString& Part)
{
	if (Part.IsEmpty())
	{
		return;
	}
	if (Path.IsEmpty())
	{
		Path = Part;
	}
	else
	{
		const bool bHasSlash = Path.EndsWith(TEXT("/"));
		const int32 Start = Part.StartsWith(TEXT("/")) ? 1 : 0;
		Path += bHasSlash ? TEXT("") : TEXT("/");
		Path += Part.Mid(Start);
	}
	NormalizeFilename(Path);
}
