#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace
{
std::string ToUtf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

/** The document, or none and the reader's message. */
TSharedPtr<FJsonValue> Read(const FString& Text, std::string* OutError = nullptr)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
	TSharedPtr<FJsonValue> Value;
	const bool bRead = FJsonSerializer::Deserialize(Reader, Value);
	EXPECT_EQ(bRead, Value.IsValid());
	EXPECT_EQ(bRead, Reader->GetErrorMessage().IsEmpty());
	if (OutError)
	{
		*OutError = ToUtf8(Reader->GetErrorMessage());
	}
	return Value;
}

TSharedPtr<FJsonObject> ReadObject(const FString& Text)
{
	const TSharedPtr<FJsonValue> Value = Read(Text);
	return Value ? Value->AsObject() : nullptr;
}

template <typename PrintPolicy = TCondensedJsonPrintPolicy<TCHAR>>
std::string Write(const TSharedPtr<FJsonObject>& Object)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, PrintPolicy>::Create(&Text);
	EXPECT_TRUE(FJsonSerializer::Serialize(Object.ToSharedRef(), Writer));
	return ToUtf8(Text);
}

FString Nested(int32 Depth)
{
	FString Text;
	for (int32 Index = 0; Index < Depth; ++Index)
	{
		Text += TEXT("[");
	}
	for (int32 Index = 0; Index < Depth; ++Index)
	{
		Text += TEXT("]");
	}
	return Text;
}

/** Keeps the errors of the As and Get forms off the console and counts them. */
class FErrorCount final : public FOutputDevice
{
public:
	FErrorCount()
		: OldVerbosity(GLog->GetConsoleVerbosity())
	{
		GLog->SetConsoleVerbosity(ELogVerbosity::NoLogging);
		GLog->AddOutputDevice(this);
	}
	virtual ~FErrorCount() override
	{
		GLog->RemoveOutputDevice(this);
		GLog->SetConsoleVerbosity(OldVerbosity);
	}
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		NumErrors += Verbosity == ELogVerbosity::Error ? 1 : 0;
	}

	int32 NumErrors = 0;

private:
	ELogVerbosity::Type OldVerbosity;
};
}

TEST(Json, DocumentsComeBackAsTheyWere)
{
	for (const char* const Text :
		{"{}", "{\"a\":1}", "{\"s\":\"text\",\"n\":-0.5,\"t\":true,\"f\":false,\"z\":null,\"o\":{\"x\":{}},\"l\":[1,[2,[]],{\"k\":\"v\"}]}",
			"{\"\":\"empty name\"}", "{\"q\":\"\\\"\\\\\\b\\f\\n\\r\\t\\u0001\"}", "{\"u\":\"T\xC3\xBCr \xE9\x96\x80 \xF0\x9F\x9A\xAA\"}",
			"{\"b\":2,\"a\":1,\"c\":3}"})
	{
		EXPECT_EQ(Write(ReadObject(UTF8_TO_TCHAR(Text))), Text);
	}
}

TEST(Json, PrettyTextIsLaidOutAsTheEngineDoesAndReadsBack)
{
	// The layout of a project's file, with what such a file seldom has.
	const std::string Pretty = R"({
	"FileVersion": 3,
	"Name": "a\"b",
	"Modules": [
		{
			"Name": "Game",
			"AdditionalDependencies": [
				"Engine",
				"UMG"
			]
		},
		{
			"Enabled": true
		}
	],
	"Numbers": [ 1, -2.5, null, false ],
	"Mixed": [
		"a",
		1, 2,
		"b",
		[ 1 ],
		[]
	],
	"Empty": [],
	"Inner":
	{
		"None":
		{
		}
	}
})";
	const TSharedPtr<FJsonObject> Object = ReadObject(UTF8_TO_TCHAR(Pretty.c_str()));
	EXPECT_EQ(Write<TPrettyJsonPrintPolicy<TCHAR>>(Object), Pretty);
}

TEST(Json, ControlCharactersAreWrittenAsTheirCodes)
{
	const TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("k"), TEXT("\u0001\u000b\u001f\b\f\n\r\t\"\\/\u007f"));
	EXPECT_EQ(Write(Object), "{\"k\":\"\\u0001\\u000b\\u001f\\b\\f\\n\\r\\t\\\"\\\\/\x7f\"}");
}

TEST(Json, NumbersKeepTheirValue)
{
	for (const double Number :
		{0.0, 1.0, -1.0, 0.1, 1e300, -1e-300, 5e-324, 1.7976931348623157e308, 123456789.125, 9007199254740992.0, 1.0 / 3.0})
	{
		const TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetNumberField(TEXT("n"), Number);
		EXPECT_EQ(ReadObject(UTF8_TO_TCHAR(Write(Object).c_str()))->GetNumberField(TEXT("n")), Number);
	}
	EXPECT_EQ(Write(ReadObject(TEXT("{\"n\":3.0}"))), "{\"n\":3}");
	EXPECT_EQ(Write(ReadObject(TEXT("{\"n\":1e-999}"))), "{\"n\":0}");
	const TSharedPtr<FJsonObject> NotFinite = MakeShared<FJsonObject>();
	NotFinite->SetNumberField(TEXT("n"), std::nan(""));
	NotFinite->SetNumberField(TEXT("i"), std::numeric_limits<double>::infinity());
	EXPECT_EQ(Write(NotFinite), "{\"n\":0,\"i\":0}");
}

TEST(Json, IntegersThatADoubleCannotHoldKeepTheirDigits)
{
	const FString Text = TEXT("{\"a\":9007199254740993,\"b\":-9223372036854775808,\"c\":18446744073709551615}");
	const TSharedPtr<FJsonObject> Object = ReadObject(Text);
	int64 Signed = 0;
	uint64 Unsigned = 0;
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("a"), Signed));
	EXPECT_EQ(Signed, 9007199254740993);
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("b"), Signed));
	EXPECT_EQ(Signed, std::numeric_limits<int64>::min());
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("c"), Signed));
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("c"), Unsigned));
	EXPECT_EQ(Unsigned, std::numeric_limits<uint64>::max());
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("b"), Unsigned));
	EXPECT_EQ(Write(Object), ToUtf8(Text));
}

TEST(Json, IntegerTypesTakeOnlyWhatTheyCanHold)
{
	const TSharedPtr<FJsonObject> Object =
		ReadObject(TEXT("{\"a\":127.4,\"b\":127.5,\"c\":-128,\"d\":-1,\"e\":3000000000,\"f\":1e30,\"g\":\"42\",\"h\":\"x\"}"));
	int8 Byte = 0;
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("a"), Byte));
	EXPECT_EQ(Byte, 127);
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("b"), Byte)) << "it rounds to 128";
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("c"), Byte));
	uint32 Unsigned = 0;
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("d"), Unsigned));
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("e"), Unsigned));
	int32 Signed = 0;
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("e"), Signed));
	int64 Long = 0;
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("f"), Long));
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("g"), Signed));
	EXPECT_EQ(Signed, 42);
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("h"), Signed));
}

TEST(Json, DepthIsLimitedBothWays)
{
	EXPECT_TRUE(Read(Nested(FJsonSerializer::MaxDepth)));
	std::string Error;
	EXPECT_FALSE(Read(Nested(FJsonSerializer::MaxDepth + 1), &Error));
	EXPECT_EQ(Error, "The document is nested too deeply. Line: 1 Ch: 257");
	EXPECT_FALSE(Read(Nested(1'000'000), &Error)) << "a hostile text costs no stack";

	TSharedPtr<FJsonObject> Deep = MakeShared<FJsonObject>();
	for (int32 Index = 0; Index < FJsonSerializer::MaxDepth; ++Index)
	{
		const TSharedPtr<FJsonObject> Outer = MakeShared<FJsonObject>();
		Outer->SetObjectField(TEXT("o"), Deep);
		Deep = Outer;
	}
	FString Text;
	EXPECT_FALSE(FJsonSerializer::Serialize(Deep.ToSharedRef(), TJsonWriterFactory<>::Create(&Text)));
}

TEST(Json, ErrorsSayWhatAndWhere)
{
	struct FCase
	{
		FString Text;
		const char* Error;
	};
	const FCase Cases[] = {
		{TEXT(""), "The document is empty. Line: 1 Ch: 1"},
		{TEXT("{\"a\":1"), "Missing a comma or '}' after an object member. Line: 1 Ch: 7"},
		{TEXT("{\n\t\"a\": 1,\n\t\"b\": tru\n}"), "Invalid value. Line: 3 Ch: 10"},
		{TEXT("{'a':1}"), "Missing a name for object member. Line: 1 Ch: 2"},
		{TEXT("[1,]"), "Invalid value. Line: 1 Ch: 4"},
		{TEXT("[1] x"), "The document root must not be followed by other values. Line: 1 Ch: 5"},
		{TEXT("[\"\\x\"]"), "Invalid escape character in string. Line: 1 Ch: 3"},
		{TEXT("[\"\\ud800\"]"), "The surrogate pair in string is invalid. Line: 1 Ch: 3"},
		{TEXT("[1e999]"), "Number too big to be stored in double. Line: 1 Ch: 2"},
		{TEXT("[\"a"), "Missing a closing quotation mark in string. Line: 1 Ch: 4"},
		{TEXT("17"), "An object or an array is expected. Line: 1 Ch: 1"},
		{FString::ConstructFromPtrSize(TEXT("{}\0x"), 4), "A null character is in the text. Line: 1 Ch: 3"},
	};
	for (const FCase& Case : Cases)
	{
		std::string Error;
		EXPECT_FALSE(Read(Case.Text, &Error)) << ToUtf8(Case.Text);
		EXPECT_EQ(Error, Case.Error) << ToUtf8(Case.Text);
	}
}

TEST(Json, DocumentOfTheWrongKindIsAnError)
{
	const TSharedRef<TJsonReader<>> ArrayReader = TJsonReaderFactory<>::Create(TEXT("[1]"));
	TSharedPtr<FJsonObject> Object;
	EXPECT_FALSE(FJsonSerializer::Deserialize(ArrayReader, Object));
	EXPECT_FALSE(Object.IsValid());
	EXPECT_THAT(ToUtf8(ArrayReader->GetErrorMessage()), testing::StartsWith("An object is expected."));
	const TSharedRef<TJsonReader<>> ObjectReader = TJsonReaderFactory<>::Create(TEXT("{}"));
	TArray<TSharedPtr<FJsonValue>> Array;
	EXPECT_FALSE(FJsonSerializer::Deserialize(ObjectReader, Array));
	EXPECT_THAT(ToUtf8(ObjectReader->GetErrorMessage()), testing::StartsWith("An array is expected."));
}

TEST(Json, LastOfTwoFieldsOfOneNameWins)
{
	const TSharedPtr<FJsonObject> Object = ReadObject(TEXT("{\"a\":1,\"b\":2,\"a\":3}"));
	EXPECT_EQ(Object->Values.Num(), 2);
	EXPECT_EQ(Object->GetIntegerField(TEXT("a")), 3);
	EXPECT_EQ(Object->GetIntegerField(TEXT("A")), 3) << "names compare without regard to case, as the engine's do";
}

TEST(Json, SurrogatePairsAreOneCharacterHoweverTheyAreWritten)
{
	const FString Door = TEXT("\U0001F6AA");
	EXPECT_EQ(ReadObject(TEXT("{\"d\":\"\\ud83d\\udeaa\"}"))->GetStringField(TEXT("d")), Door);
	EXPECT_EQ(ReadObject(TEXT("{\"d\":\"") + Door + TEXT("\"}"))->GetStringField(TEXT("d")), Door);
	EXPECT_EQ(ReadObject(TEXT("{\"d\":\"a\\u0000b\"}"))->GetStringField(TEXT("d")).Len(), 3);
}

TEST(Json, FieldsOfAnotherTypeAreRefusedOrLogged)
{
	FErrorCount Errors;
	const TSharedPtr<FJsonObject> Object = ReadObject(TEXT("{\"s\":\"text\",\"a\":[\"x\",1,{}],\"z\":null}"));
	const TSharedPtr<FJsonObject>* Inner = nullptr;
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	TArray<FString> Strings;
	EXPECT_FALSE(Object->TryGetObjectField(TEXT("s"), Inner));
	EXPECT_FALSE(Object->TryGetArrayField(TEXT("s"), Array));
	EXPECT_FALSE(Object->TryGetStringArrayField(TEXT("a"), Strings));
	EXPECT_EQ(Strings.Num(), 2) << "a number has a text, an object has none";
	EXPECT_TRUE(Object->HasTypedField<EJson::Null>(TEXT("z")));
	EXPECT_FALSE(Object->HasField(TEXT("none")));
	EXPECT_EQ(Errors.NumErrors, 0);
	EXPECT_EQ(ToUtf8(Object->GetStringField(TEXT("none"))), "");
	EXPECT_TRUE(Object->GetArrayField(TEXT("s")).IsEmpty());
	EXPECT_TRUE(Object->GetObjectField(TEXT("s")).IsValid());
	EXPECT_GE(Errors.NumErrors, 3);
}

TEST(Json, CopiesAreDeepAndEqual)
{
	const TSharedPtr<FJsonValue> Source = Read(TEXT("{\"a\":[1,{\"b\":null}],\"c\":\"x\"}"));
	const TSharedPtr<FJsonValue> Copy = FJsonValue::Duplicate(Source);
	EXPECT_TRUE(*Source == *Copy);
	Copy->AsObject()->GetArrayField(TEXT("a"))[1]->AsObject()->SetStringField(TEXT("b"), TEXT("changed"));
	EXPECT_FALSE(*Source == *Copy);
	EXPECT_TRUE(Source->AsObject()->GetArrayField(TEXT("a"))[1]->AsObject()->HasTypedField<EJson::Null>(TEXT("b")));
	EXPECT_FALSE(*Read(TEXT("[\"a\"]")) == *Read(TEXT("[\"A\"]"))) << "values differ by case";
	EXPECT_FALSE(*Read(TEXT("[1]")) == *Read(TEXT("[1,2]")));
}

TEST(Json, MissingValuesAreWrittenAsNull)
{
	const TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("a"), nullptr);
	Object->SetField(TEXT("b"), MakeShared<FJsonValueObject>(nullptr));
	Object->SetObjectField(TEXT("c"), nullptr);
	Object->SetArrayField(TEXT("d"), TArray<TSharedPtr<FJsonValue>>{nullptr});
	EXPECT_EQ(Write(Object), "{\"a\":null,\"b\":null,\"c\":null,\"d\":[null]}");
}

TEST(Json, WriterTakesADocumentPieceByPiece)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	Writer->WriteObjectStart();
	Writer->WriteValue(TEXT("i"), int64(-5));
	Writer->WriteValue(TEXT("u"), uint64(18446744073709551615ull));
	Writer->WriteArrayStart(TEXT("a"));
	Writer->WriteValue(true);
	Writer->WriteValue(TEXT("s"));
	Writer->WriteNull();
	Writer->WriteArrayEnd();
	EXPECT_FALSE(Writer->Close()) << "the document is still open";
	Writer->WriteObjectEnd();
	EXPECT_TRUE(Writer->Close());
	EXPECT_EQ(ToUtf8(Text), "{\"i\":-5,\"u\":18446744073709551615,\"a\":[true,\"s\",null]}");
}
