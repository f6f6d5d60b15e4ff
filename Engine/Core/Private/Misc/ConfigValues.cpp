#include "Misc/ConfigCacheIni.h"

#include "Internationalization/Text.h"
#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Misc/AtomicFile.h"
#include "Misc/CString.h"
#include "Misc/Parse.h"

namespace
{
/** Reads a type that has InitFromString; a text that it refuses leaves the value alone. */
template <typename ValueType>
bool GetParsed(FConfigCacheIni& Config, const TCHAR* Section, const TCHAR* Key, ValueType& Value, const FString& Filename)
{
	FString Text;
	ValueType Parsed;
	if (!Config.GetString(Section, Key, Text, Filename) || !Parsed.InitFromString(Text))
	{
		return false;
	}
	Value = Parsed;
	return true;
}

/** The value as Convert makes it of the text; where there is none, the value stays. */
template <typename ValueType, typename ConvertType>
bool GetConverted(const FConfigFile& File, const TCHAR* Section, const TCHAR* Key, ValueType& Value, ConvertType Convert)
{
	FString Text;
	if (!File.GetString(Section, Key, Text))
	{
		return false;
	}
	Value = Convert(*Text);
	return true;
}

template <typename ValueType>
using TConfigGetter = bool (FConfigCacheIni::*)(const TCHAR* Section, const TCHAR* Key, ValueType& Value, const FString& Filename);

template <typename ValueType>
ValueType GetOrDefault(FConfigCacheIni& Config, TConfigGetter<ValueType> Get, const TCHAR* Section, const TCHAR* Key, ValueType Value,
	const FString& Filename)
{
	(Config.*Get)(Section, Key, Value, Filename);
	return Value;
}
}

void FConfigFile::Read(const FString& Filename)
{
	Sections.Reset();
	Combine(Filename);
	Dirty = false;
}

bool FConfigFile::Write(const FString& Filename) const
{
	FString Error;
	return UE::SaveFileAtomically(Filename, ToText(FConfigFile()), Error);
}

bool FConfigFile::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const
{
	const FConfigSection* const Found = FindSection(Section);
	const FString* const Text = Found != nullptr ? Found->Find(Key) : nullptr;
	if (Text == nullptr)
	{
		return false;
	}
	Value = *Text;
	return true;
}

bool FConfigFile::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value) const
{
	return GetConverted(*this, Section, Key, Value, &FCString::ToBool);
}

bool FConfigFile::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value) const
{
	return GetConverted(*this, Section, Key, Value, &FCString::Atoi);
}

bool FConfigFile::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value) const
{
	return GetConverted(*this, Section, Key, Value, &FCString::Atoi64);
}

bool FConfigFile::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value) const
{
	return GetConverted(*this, Section, Key, Value, &FCString::Atof);
}

bool FConfigFile::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value) const
{
	return GetConverted(*this, Section, Key, Value, &FCString::Atod);
}

int32 FConfigFile::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const
{
	Value.Reset();
	if (const FConfigSection* const Found = FindSection(Section))
	{
		Found->MultiFind(Key, Value);
	}
	return Value.Num();
}

void FConfigFile::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value)
{
	SetArray(Section, Key, {FString(Value)});
}

void FConfigFile::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value)
{
	FConfigSection& Target = FindOrAddSection(Section);
	if (Value.Num() == 1)
	{
		Target.Set(Key, Value[0]);
	}
	else
	{
		Target.Remove(Key);
		for (const FString& Item : Value)
		{
			Target.Add(Key, Item);
		}
	}
	Dirty = true;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	return Find(Filename)->GetString(Section, Key, Value);
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	return Find(Filename)->GetBool(Section, Key, Value);
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	return Find(Filename)->GetInt(Section, Key, Value);
}

bool FConfigCacheIni::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename)
{
	return Find(Filename)->GetInt64(Section, Key, Value);
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	return Find(Filename)->GetFloat(Section, Key, Value);
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	return Find(Filename)->GetDouble(Section, Key, Value);
}

bool FConfigCacheIni::GetVector(const TCHAR* Section, const TCHAR* Key, FVector& Value, const FString& Filename)
{
	return GetParsed(*this, Section, Key, Value, Filename);
}

bool FConfigCacheIni::GetRotator(const TCHAR* Section, const TCHAR* Key, FRotator& Value, const FString& Filename)
{
	return GetParsed(*this, Section, Key, Value, Filename);
}

bool FConfigCacheIni::GetColor(const TCHAR* Section, const TCHAR* Key, FColor& Value, const FString& Filename)
{
	return GetParsed(*this, Section, Key, Value, Filename);
}

bool FConfigCacheIni::GetText(const TCHAR* Section, const TCHAR* Key, FText& Value, const FString& Filename)
{
	FString Text;
	return GetString(Section, Key, Text, Filename) && FTextStringHelper::ReadFromBuffer(*Text, Value, Section) != nullptr;
}

FString FConfigCacheIni::GetStringOrDefault(const TCHAR* Section, const TCHAR* Key, const FString& DefaultValue, const FString& Filename)
{
	return GetOrDefault(*this, &FConfigCacheIni::GetString, Section, Key, DefaultValue, Filename);
}

bool FConfigCacheIni::GetBoolOrDefault(const TCHAR* Section, const TCHAR* Key, bool DefaultValue, const FString& Filename)
{
	return GetOrDefault(*this, &FConfigCacheIni::GetBool, Section, Key, DefaultValue, Filename);
}

int32 FConfigCacheIni::GetIntOrDefault(const TCHAR* Section, const TCHAR* Key, int32 DefaultValue, const FString& Filename)
{
	return GetOrDefault(*this, &FConfigCacheIni::GetInt, Section, Key, DefaultValue, Filename);
}

float FConfigCacheIni::GetFloatOrDefault(const TCHAR* Section, const TCHAR* Key, float DefaultValue, const FString& Filename)
{
	return GetOrDefault(*this, &FConfigCacheIni::GetFloat, Section, Key, DefaultValue, Filename);
}

double FConfigCacheIni::GetDoubleOrDefault(const TCHAR* Section, const TCHAR* Key, double DefaultValue, const FString& Filename)
{
	return GetOrDefault(*this, &FConfigCacheIni::GetDouble, Section, Key, DefaultValue, Filename);
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename)
{
	return Find(Filename)->GetArray(Section, Key, OutArray);
}

int32 FConfigCacheIni::GetSingleLineArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename)
{
	FString Line;
	FString Item;
	OutArray.Reset();
	GetString(Section, Key, Line, Filename);
	for (const TCHAR* Rest = *Line; FParse::Token(Rest, Item, false);)
	{
		OutArray.Add(Item);
	}
	return OutArray.Num();
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Reset();
	const FConfigSection* const Found = Find(Filename)->FindSection(Section);
	if (Found == nullptr)
	{
		return false;
	}
	for (const FConfigSection::FEntry& Entry : Found->Entries)
	{
		Result.Add(Entry.Key + TEXT("=") + Entry.Value);
	}
	return true;
}

bool FConfigCacheIni::GetSectionNames(const FString& Filename, TArray<FString>& OutSectionNames)
{
	Find(Filename)->Sections.GenerateKeyArray(OutSectionNames);
	return !OutSectionNames.IsEmpty();
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	return Find(Filename)->Contains(Section);
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	Find(Filename)->SetString(Section, Key, Value);
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%d"), Value), Filename);
}

void FConfigCacheIni::SetInt64(const TCHAR* Section, const TCHAR* Key, int64 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%lld"), Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetVector(const TCHAR* Section, const TCHAR* Key, const FVector& Value, const FString& Filename)
{
	SetString(Section, Key, *Value.ToString(), Filename);
}

void FConfigCacheIni::SetRotator(const TCHAR* Section, const TCHAR* Key, const FRotator& Value, const FString& Filename)
{
	SetString(Section, Key, *Value.ToString(), Filename);
}

void FConfigCacheIni::SetColor(const TCHAR* Section, const TCHAR* Key, FColor Value, const FString& Filename)
{
	SetString(Section, Key, *Value.ToString(), Filename);
}

void FConfigCacheIni::SetSingleLineArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	const auto Quoted = [](const FString& Item)
	{ return TEXT("\"") + Item + TEXT("\""); };
	SetString(Section, Key, *FString::JoinBy(Value, TEXT(" "), Quoted), Filename);
}

void FConfigCacheIni::SetText(const TCHAR* Section, const TCHAR* Key, const FText& Value, const FString& Filename)
{
	FString Text;
	FTextStringHelper::WriteToBuffer(Text, Value);
	SetString(Section, Key, *Text, Filename);
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	Find(Filename)->SetArray(Section, Key, Value);
}

bool FConfigCacheIni::AddToSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	File->FindOrAddSection(Section).Add(Key.ToString(), Value);
	return File->Dirty = true;
}

bool FConfigCacheIni::AddUniqueToSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	FConfigSection& Target = File->FindOrAddSection(Section);
	const int32 OldNum = Target.Entries.Num();
	Target.AddUnique(Key.ToString(), Value);
	const bool bAdded = Target.Entries.Num() != OldNum;
	File->Dirty = File->Dirty || bAdded;
	return bAdded;
}

bool FConfigCacheIni::RemoveFromSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	FConfigSection* const Found = File->Sections.Find(Section);
	const bool bRemoved = Found != nullptr && Found->RemoveSingle(Key.ToString(), Value) > 0;
	File->Dirty = File->Dirty || bRemoved;
	return bRemoved;
}
