#include "StructLayouts.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Serialization/Archive.h"

#include <cmath>

namespace
{
struct FLayout
{
	const TCHAR* Struct;
	/** For each field its kind, a colon, its name. Kinds: r a real of the package's precision, f float, i int32, l int64, b byte. */
	const TCHAR* Fields;
};

constexpr FLayout Layouts[] = {
	{TEXT("Vector"), TEXT("r:X r:Y r:Z")},
	{TEXT("Vector2D"), TEXT("r:X r:Y")},
	{TEXT("Vector4"), TEXT("r:X r:Y r:Z r:W")},
	{TEXT("DeprecateSlateVector2D"), TEXT("f:X f:Y")},
	{TEXT("Vector3f"), TEXT("f:X f:Y f:Z")},
	{TEXT("Vector2f"), TEXT("f:X f:Y")},
	{TEXT("Vector4f"), TEXT("f:X f:Y f:Z f:W")},
	{TEXT("Rotator"), TEXT("r:Pitch r:Yaw r:Roll")},
	{TEXT("Quat"), TEXT("r:X r:Y r:Z r:W")},
	{TEXT("Plane"), TEXT("r:X r:Y r:Z r:W")},
	{TEXT("Box"), TEXT("r:MinX r:MinY r:MinZ r:MaxX r:MaxY r:MaxZ b:IsValid")},
	{TEXT("Box2D"), TEXT("r:MinX r:MinY r:MaxX r:MaxY b:IsValid")},
	{TEXT("Sphere"), TEXT("r:X r:Y r:Z r:W")},
	{TEXT("Color"), TEXT("b:B b:G b:R b:A")},
	{TEXT("LinearColor"), TEXT("f:R f:G f:B f:A")},
	{TEXT("IntPoint"), TEXT("i:X i:Y")},
	{TEXT("IntVector"), TEXT("i:X i:Y i:Z")},
	{TEXT("DateTime"), TEXT("l:Ticks")},
	{TEXT("Timespan"), TEXT("l:Ticks")},
	{TEXT("FrameNumber"), TEXT("i:Value")},
	{TEXT("RichCurveKey"), TEXT("b:InterpMode b:TangentMode b:TangentWeightMode f:Time f:Value f:ArriveTangent f:ArriveTangentWeight f:LeaveTangent f:LeaveTangentWeight")},
	{TEXT("Matrix"), TEXT("r:XX r:XY r:XZ r:XW r:YX r:YY r:YZ r:YW r:ZX r:ZY r:ZZ r:ZW r:WX r:WY r:WZ r:WW")}};

const FLayout* Find(FName StructName)
{
	static const TMap<FName, const FLayout*> ByName = []
	{
		TMap<FName, const FLayout*> Result;
		for (const FLayout& Layout : Layouts)
		{
			Result.Add(FName(Layout.Struct), &Layout);
		}
		return Result;
	}();
	const FLayout* const* const Found = ByName.Find(StructName);
	return Found ? *Found : nullptr;
}

template <typename Type>
Type ReadNumber(FArchive& Ar)
{
	Type Value{};
	Ar << Value;
	return Value;
}

TSharedPtr<FJsonValue> ReadField(FArchive& Ar, TCHAR Kind)
{
	switch (Kind)
	{
		case TEXT('r'):
			return MakeJsonNumber(Ar.UEVer() >= EUnrealEngineObjectUE5Version::LARGE_WORLD_COORDINATES ? ReadNumber<double>(Ar) : ReadNumber<float>(Ar));
		case TEXT('f'):
			return MakeJsonNumber(ReadNumber<float>(Ar));
		case TEXT('l'):
			return MakeJsonInteger(ReadNumber<int64>(Ar));
		case TEXT('i'):
			return MakeJsonInteger(ReadNumber<int32>(Ar));
		default:
			return MakeJsonInteger(ReadNumber<uint8>(Ar));
	}
}
}

TSharedPtr<FJsonValue> MakeJsonNumber(double Number)
{
	if (!std::isfinite(Number))
	{
		return MakeShared<FJsonValueString>(std::isnan(Number) ? TEXT("nan") : Number > 0 ? TEXT("inf")
																						  : TEXT("-inf"));
	}
	return MakeShared<FJsonValueNumber>(Number);
}

TSharedPtr<FJsonValue> MakeJsonInteger(int64 Number)
{
	constexpr int64 LargestExact = int64(1) << 53;
	if (Number > LargestExact || Number < -LargestExact)
	{
		return MakeShared<FJsonValueString>(FString::Printf(TEXT("%lld"), static_cast<long long>(Number)));
	}
	return MakeShared<FJsonValueNumber>(static_cast<double>(Number));
}

bool StructLayouts::Has(FName StructName)
{
	return Find(StructName) != nullptr;
}

TSharedPtr<FJsonObject> StructLayouts::Read(FArchive& Ar, FName StructName)
{
	const FLayout* const Layout = Find(StructName);
	if (!Layout)
	{
		return nullptr;
	}
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	TArray<FString> Fields;
	FString(Layout->Fields).ParseIntoArray(Fields, TEXT(" "));
	for (const FString& Field : Fields)
	{
		Object->SetField(Field.RightChop(2), ReadField(Ar, Field[0]));
	}
	return Object;
}
