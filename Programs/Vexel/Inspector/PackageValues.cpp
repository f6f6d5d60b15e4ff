#include "PackageValues.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"

namespace
{
/** More text than any package that an editor saved needs. */
constexpr int64 CharactersOfAnyFile = 16 << 20;
constexpr int64 CharactersPerByte = 8;
}

FPackageValues::FPackageValues(FLinkerLoad& InLinker)
	: Linker(InLinker)
	, CharactersLeft(CharactersOfAnyFile + InLinker.GetFileSize() * CharactersPerByte)
{
}

FString FPackageValues::Spend(FString&& Text, FString&& Short)
{
	if (Text.Len() > CharactersLeft)
	{
		return MoveTemp(Short);
	}
	CharactersLeft -= Text.Len();
	return MoveTemp(Text);
}

FString FPackageValues::GetPath(FPackageIndex Index)
{
	if (Index.IsNull())
	{
		return TEXT("None");
	}
	FString Number = Index.IsExport() ? FString::Printf(TEXT("export %d"), Index.ToExport()) : FString::Printf(TEXT("import %d"), Index.ToImport());
	return CharactersLeft > 0 ? Spend(Linker.GetPathName(Index), MoveTemp(Number)) : Number;
}

FString FPackageValues::ReadName()
{
	FName Name;
	Linker << Name;
	return Spend(Name.ToString(), TEXT("..."));
}

FPackageValues::FValue FPackageValues::ReadReference()
{
	const int64 Start = Linker.Tell();
	const FPackageIndex Index = FPackageIndex::FromRaw(Read<int32>());
	if (Index.IsNull() || Linker.IsError())
	{
		return MakeShared<FJsonValueNull>();
	}
	if (!Linker.FindResource(Index))
	{
		Linker.Seek(Start);
		Linker.SetError();
		return MakeShared<FJsonValueNull>();
	}
	return MakeShared<FJsonValueString>(GetPath(Index));
}

FPackageValues::FValue FPackageValues::ReadText()
{
	const FText Text = Read<FText>();
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("text"), Text.ToString());
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	if (const TOptional<FString> Key = FTextInspector::GetKey(Text))
	{
		Object->SetStringField(TEXT("namespace"), Namespace ? *Namespace : FString());
		Object->SetStringField(TEXT("key"), *Key);
	}
	return MakeShared<FJsonValueObject>(Object);
}

FString FPackageValues::ReadSoftPath()
{
	FSoftObjectPath Path;
	Linker << Path;
	return Spend(Path.ToString(), TEXT("..."));
}

int32 FPackageValues::ReadCount(int64 MinEntryBytes)
{
	const int32 Count = Read<int32>();
	if (Linker.IsError() || Count < 0 || !Linker.CanHold(Count, MinEntryBytes))
	{
		Linker.SetError();
		return 0;
	}
	return Count;
}
