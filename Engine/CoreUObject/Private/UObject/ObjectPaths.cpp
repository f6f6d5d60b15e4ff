#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/PropertyTag.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UObjectGlobals.h"

namespace
{
FStringView WithoutQuotes(FStringView Text)
{
	const bool bQuoted = Text.Len() >= 2 && Text.StartsWith(TEXT("\"")) && Text.EndsWith(TEXT("\""));
	return bQuoted ? Text.Mid(1, Text.Len() - 2) : Text;
}

/** The path inside "Class'Path'", or the text itself. Quotes may stand around the whole or, as in older texts, around the path. */
FStringView PathOfExportText(FStringView Text)
{
	Text = WithoutQuotes(Text);
	int32 Quote = INDEX_NONE;
	if (Text.FindChar('\'', Quote) && Text.EndsWith(TEXT("'")) && Quote + 1 < Text.Len())
	{
		Text = WithoutQuotes(Text.Mid(Quote + 1, Text.Len() - Quote - 2));
	}
	return Text;
}

void AppendTextItem(FString& ValueStr, const FString& Path, int32 PortFlags)
{
	if (Path.IsEmpty())
	{
		ValueStr += TEXT("None");
		return;
	}
	ValueStr += PortFlags & PPF_Delimited ? FPropertyHelpers::QuoteAndEscape(Path) : Path;
}

/** Reads "Class'/Path'", a quoted path, or a bare one. */
bool ReadPath(const TCHAR*& Buffer, FString& OutPath)
{
	FString Token;
	const TCHAR* End = FPropertyHelpers::ReadToken(Buffer, Token, true);
	if (!End)
	{
		return false;
	}
	if (*End == '\'')
	{
		const TCHAR* const Close = FCString::Strchr(End + 1, '\'');
		if (!Close)
		{
			return false;
		}
		Token = FString(FStringView(End + 1, static_cast<int32>(Close - End - 1)));
		End = Close + 1;
	}
	Buffer = End;
	OutPath = Token == TEXT("None") ? FString() : FString(PathOfExportText(Token));
	return true;
}
}

FTopLevelAssetPath::FTopLevelAssetPath(const UObject* InObject)
{
	TrySetPath(InObject);
}

bool FTopLevelAssetPath::TrySetPath(FName InPackageName, FName InAssetName)
{
	PackageName = InPackageName;
	AssetName = InPackageName == NAME_None ? FName() : InAssetName;
	return IsValid();
}

bool FTopLevelAssetPath::TrySetPath(FStringView Path)
{
	Reset();
	Path = PathOfExportText(Path);
	if (Path.IsEmpty() || Path[0] != '/' || Path.Len() == 1)
	{
		return false;
	}
	int32 Dot = INDEX_NONE;
	if (!Path.FindChar('.', Dot))
	{
		PackageName = FName(*FString(Path));
		return true;
	}
	const FStringView Asset = Path.RightChop(Dot + 1);
	int32 Unused = INDEX_NONE;
	if (Asset.IsEmpty() || Asset.FindChar('.', Unused) || Asset.FindChar(':', Unused))
	{
		return false;
	}
	PackageName = FName(*FString(Path.Left(Dot)));
	AssetName = FName(*FString(Asset));
	return true;
}

bool FTopLevelAssetPath::TrySetPath(const UObject* InObject)
{
	Reset();
	if (!InObject)
	{
		return false;
	}
	const UObject* const Outer = InObject->GetOuter();
	if (!Outer)
	{
		PackageName = InObject->GetFName();
		return true;
	}
	if (Outer->GetOuter())
	{
		return false;
	}
	PackageName = Outer->GetFName();
	AssetName = InObject->GetFName();
	return true;
}

FString FTopLevelAssetPath::ToString() const
{
	FString Result;
	if (IsValid())
	{
		Result = PackageName.ToString();
		if (AssetName != NAME_None)
		{
			Result += TEXT(".") + AssetName.ToString();
		}
	}
	return Result;
}

int32 FTopLevelAssetPath::Compare(const FTopLevelAssetPath& Other) const
{
	const int32 Packages = PackageName.Compare(Other.PackageName);
	return Packages ? Packages : AssetName.Compare(Other.AssetName);
}

FArchive& operator<<(FArchive& Ar, FTopLevelAssetPath& Path)
{
	Ar << Path.PackageName;
	Ar << Path.AssetName;
	return Ar;
}

bool FTopLevelAssetPath::ExportTextItem(
	FString& ValueStr, const FTopLevelAssetPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	AppendTextItem(ValueStr, ToString(), PortFlags);
	return true;
}

bool FTopLevelAssetPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	FString Path;
	if (!ReadPath(Buffer, Path))
	{
		return false;
	}
	TrySetPath(Path);
	return Path.IsEmpty() || IsValid();
}

FSoftObjectPath::FSoftObjectPath(const UObject* InObject)
{
	if (InObject)
	{
		SetPath(InObject->GetPathName());
	}
}

void FSoftObjectPath::SetPath(FStringView Path)
{
	Reset();
	Path = PathOfExportText(Path);
	if (Path.IsEmpty() || Path.Equals(TEXT("None"), ESearchCase::IgnoreCase))
	{
		return;
	}
	// What follows the asset may be set off by ':' or, in older texts, by a second '.'.
	int32 Dot = INDEX_NONE;
	int32 End = Path.Len();
	if (Path.FindChar('.', Dot))
	{
		for (int32 Index = Dot + 1; Index < Path.Len(); ++Index)
		{
			if (Path[Index] == ':' || Path[Index] == '.')
			{
				End = Index;
				break;
			}
		}
	}
	if (AssetPath.TrySetPath(Path.Left(End)) && End < Path.Len())
	{
		SubPathString = FString(Path.RightChop(End + 1));
	}
}

void FSoftObjectPath::SetPath(const FTopLevelAssetPath& InAssetPath, FString InSubPathString)
{
	AssetPath = InAssetPath;
	SubPathString = MoveTemp(InSubPathString);
}

FString FSoftObjectPath::ToString() const
{
	return SubPathString.IsEmpty() ? AssetPath.ToString() : AssetPath.ToString() + TEXT(":") + SubPathString;
}

UObject* FSoftObjectPath::ResolveObject() const
{
	return IsNull() ? nullptr : StaticFindObject(nullptr, nullptr, *ToString());
}

UObject* FSoftObjectPath::TryLoad(FUObjectSerializeContext* InLoadContext) const
{
	return IsNull() ? nullptr : StaticLoadObject(UObject::StaticClass(), nullptr, *ToString(), nullptr, LOAD_NoWarn);
}

bool FSoftObjectPath::Serialize(FArchive& Ar)
{
	// The archive decides: packages keep a table of paths.
	Ar << *this;
	return true;
}

namespace
{
/** The branch of versions that tells how a path within an asset is written: 134 (engine 5.4) as a string, 207 (5.6) as UTF-8. */
const FGuid SubPathVersionGuid(0x601D1886, 0xAC644F84, 0xAA16D3DE, 0x0DEAC7D6);
constexpr int32 Utf8SubPathVersion = 207;

/** UTF-8 without a closing NUL since 5.6, a string with one before; which of them stands here shows at its last byte. */
void ReadSubPath(FArchive& Ar, FString& OutSubPath)
{
	int32 Length = 0;
	Ar << Length;
	if (Length < 0 && Length != MIN_int32 && Ar.Tell() >= static_cast<int64>(sizeof(Length)))
	{
		Ar.Seek(Ar.Tell() - sizeof(Length));
		Ar << OutSubPath;
		return;
	}
	if (Length < 0 || !Ar.CanHold(Length))
	{
		Ar.SetError();
		return;
	}
	TArray<uint8> Text;
	Text.SetNumZeroed(Length + 1);
	Ar.Serialize(Text.GetData(), Length);
	OutSubPath = UTF8_TO_TCHAR(reinterpret_cast<const char*>(Text.GetData()));
}

void WriteSubPath(FArchive& Ar, FString& SubPath)
{
	if (Ar.CustomVer(SubPathVersionGuid) < Utf8SubPathVersion)
	{
		Ar << SubPath;
		return;
	}
	const FTCHARToUTF8 Text(*SubPath);
	int32 Length = Text.Length();
	Ar << Length;
	Ar.Serialize(const_cast<ANSICHAR*>(Text.Get()), Length);
}
}

void FSoftObjectPath::SerializePath(FArchive& Ar)
{
	if (Ar.UEVer() < VER_UE4_ADDED_SOFT_OBJECT_PATH)
	{
		FString Path = ToString();
		Ar << Path;
		SetPath(Path);
		return;
	}
	if (Ar.UEVer() < EUnrealEngineObjectUE5Version::FSOFTOBJECTPATH_REMOVE_ASSET_PATH_FNAMES)
	{
		FName AssetPathName = AssetPath.ToFName();
		FString SubPath = SubPathString;
		Ar << AssetPathName << SubPath;
		SetPath(AssetPathName.IsNone() ? FString() : AssetPathName.ToString());
		SubPathString = SubPath;
		return;
	}
	Ar << AssetPath;
	if (Ar.IsLoading())
	{
		ReadSubPath(Ar, SubPathString);
	}
	else
	{
		WriteSubPath(Ar, SubPathString);
	}
}

bool FSoftObjectPath::ExportTextItem(
	FString& ValueStr, const FSoftObjectPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	AppendTextItem(ValueStr, ToString(), PortFlags);
	return true;
}

bool FSoftObjectPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	FString Path;
	if (!ReadPath(Buffer, Path))
	{
		return false;
	}
	SetPath(Path);
	return true;
}

bool FSoftObjectPath::SerializeFromMismatchedTag(const FPropertyTag& Tag, FArchive& Ar)
{
	static const FName NAME_ObjectProperty(TEXT("ObjectProperty"));
	static const FName NAME_StrProperty(TEXT("StrProperty"));
	static const FName NAME_NameProperty(TEXT("NameProperty"));
	static const FName NAME_SoftObjectProperty(TEXT("SoftObjectProperty"));
	if (Tag.Type == NAME_ObjectProperty)
	{
		UObject* Object = nullptr;
		Ar << Object;
		*this = FSoftObjectPath(Object);
		return true;
	}
	if (Tag.Type == NAME_StrProperty)
	{
		FString Text;
		Ar << Text;
		SetPath(Text);
		return true;
	}
	if (Tag.Type == NAME_NameProperty)
	{
		FName Name;
		Ar << Name;
		SetPath(Name.ToString());
		return true;
	}
	if (Tag.Type == NAME_SoftObjectProperty)
	{
		return Serialize(Ar);
	}
	return false;
}

FSoftClassPath::FSoftClassPath(const UClass* InClass)
	: FSoftObjectPath(static_cast<const UObject*>(InClass))
{
}

UClass* FSoftClassPath::ResolveClass() const
{
	UObject* const Object = ResolveObject();
	return Object && Object->IsA<UClass>() ? static_cast<UClass*>(Object) : nullptr;
}

UClass* FSoftClassPath::TryLoadClassOf(const UClass* BaseClass) const
{
	UObject* const Object = TryLoad();
	UClass* const Class = Object && Object->IsA<UClass>() ? static_cast<UClass*>(Object) : nullptr;
	return Class && Class->IsChildOf(BaseClass) ? Class : nullptr;
}
