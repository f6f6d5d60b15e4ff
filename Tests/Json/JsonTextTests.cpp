#include "Dom/JsonObject.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "Serialization/MemoryWriter.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace
{
FUtf8StringView ToView(std::string_view Bytes)
{
	return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Bytes.data()), int32(Bytes.size()));
}

std::string ErrorOf(std::string_view Bytes)
{
	const auto Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView(Bytes));
	TSharedPtr<FJsonValue> Value;
	EXPECT_FALSE(FJsonSerializer::Deserialize(Reader, Value)) << Bytes;
	const std::string FromUtf8 = TCHAR_TO_UTF8(*Reader->GetErrorMessage());
	const auto Wide = TJsonReaderFactory<>::Create(FString(UTF8_TO_TCHAR(std::string(Bytes).c_str())));
	EXPECT_FALSE(FJsonSerializer::Deserialize(Wide, Value));
	EXPECT_EQ(FromUtf8, std::string(TCHAR_TO_UTF8(*Wide->GetErrorMessage()))) << "both readers say the same";
	return FromUtf8;
}

template <class CharType>
std::string WriteToArchive(const TSharedRef<FJsonObject>& Object)
{
	TArray<uint8> Bytes;
	FMemoryWriter Archive(Bytes);
	const auto Writer = TJsonWriterFactory<CharType, TCondensedJsonPrintPolicy<CharType>>::Create(&Archive);
	EXPECT_TRUE(FJsonSerializer::Serialize(Object, Writer));
	return std::string(reinterpret_cast<const char*>(Bytes.GetData()), size_t(Bytes.Num()));
}

std::string NumberText(double Value)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	Writer->WriteArrayStart();
	Writer->WriteValue(Value);
	Writer->WriteArrayEnd();
	EXPECT_TRUE(Writer->Close());
	const std::string Whole = TCHAR_TO_UTF8(*Text);
	return Whole.substr(1, Whole.size() - 2);
}
}

TEST(JsonText, Utf8IsReadAndWrittenWithoutAChange)
{
	for (const std::string_view Text :
		{R"({"a":1})", "{\"k\xC3\xA9y\":\"T\xC3\xBCr \xE9\x96\x80 \xF0\x9F\x9A\xAA end\"}", R"({"deep":[[[{"x":[]}]]]})"})
	{
		const auto Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView(Text));
		TSharedPtr<FJsonObject> Object;
		ASSERT_TRUE(FJsonSerializer::Deserialize(Reader, Object));
		EXPECT_EQ(WriteToArchive<UTF8CHAR>(Object.ToSharedRef()), Text);
		FString Wide;
		FJsonSerializer::Serialize(Object.ToSharedRef(), TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Wide));
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Wide)), Text);
		EXPECT_EQ(WriteToArchive<TCHAR>(Object.ToSharedRef()).size(), size_t(Wide.Len()) * sizeof(TCHAR));
	}
}

TEST(JsonText, TextsOfEveryLengthAndMixtureComeBackFromBothEncodings)
{
	const TCHAR* const Pieces[] = {
		TEXT("a"), TEXT("0123456789abcdef"), TEXT("\u00e9"), TEXT("\u9580"), TEXT("\U0001F6AA"), TEXT("\\n"), TEXT("\"")};
	std::mt19937 Random(3);
	for (int32 Round = 0; Round < 2000; ++Round)
	{
		FString Text;
		for (uint32 Count = Random() % 9; Count > 0; --Count)
		{
			Text += Pieces[Random() % UE_ARRAY_COUNT(Pieces)];
		}
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(Text, Text);
		Object->SetStringField(TEXT("again"), Text);
		const std::string Utf8 = WriteToArchive<UTF8CHAR>(Object);
		TSharedPtr<FJsonObject> FromUtf8;
		TSharedPtr<FJsonObject> FromUtf16;
		ASSERT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView(Utf8)), FromUtf8));
		ASSERT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(FString(UTF8_TO_TCHAR(Utf8.c_str()))), FromUtf16));
		for (const TSharedPtr<FJsonObject>& Read : {FromUtf8, FromUtf16})
		{
			ASSERT_TRUE(Read->GetStringField(Text).Equals(Text, ESearchCase::CaseSensitive)) << Utf8;
			ASSERT_TRUE(Read->GetStringField(TEXT("again")).Equals(Text, ESearchCase::CaseSensitive)) << Utf8;
		}
	}
}

TEST(JsonText, EqualTextsOfDifferentKindsStayApart)
{
	const std::string Text = R"({"a":"1","b":1,"c":"true","d":true,"e":"1","f":"A","g":"a","h":"null","i":null})";
	TSharedPtr<FJsonObject> Object;
	ASSERT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView(Text)), Object));
	EXPECT_EQ(WriteToArchive<UTF8CHAR>(Object.ToSharedRef()), Text);
	Object->SetStringField(TEXT("a"), TEXT("other"));
	EXPECT_EQ(Object->GetStringField(TEXT("e")), TEXT("1")) << "a field that is set anew takes no other with it";
}

TEST(JsonText, BytesThatAreNoUtf8BecomeReplacementCharacters)
{
	const auto Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView("{\"a\":\"x\xFF\xC3y\"}"));
	TSharedPtr<FJsonObject> Object;
	ASSERT_TRUE(FJsonSerializer::Deserialize(Reader, Object));
	const FString Text = Object->GetStringField(TEXT("a"));
	EXPECT_TRUE(Text.StartsWith(TEXT("x\xFFFD"))) << TCHAR_TO_UTF8(*Text);
}

TEST(JsonText, AByteOrderMarkIsPassedOver)
{
	const auto Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView("\xEF\xBB\xBF{\"a\":2}"));
	TSharedPtr<FJsonObject> Object;
	ASSERT_TRUE(FJsonSerializer::Deserialize(Reader, Object));
	EXPECT_EQ(Object->GetNumberField(TEXT("a")), 2.0);
}

TEST(JsonText, MistakesAreToldWithLineAndCharacter)
{
	const auto EndsWith = [](const std::string& Text, std::string_view End)
	{ return Text.size() >= End.size() && std::string_view(Text).substr(Text.size() - End.size()) == End; };
	struct FCase
	{
		const char* Text;
		const char* Place;
	};
	for (const FCase& Case : {
			 FCase{"{\n\t\"a\": 1,\n\t\"b\" 2\n}", " Line: 3 Ch: 6"},
			 FCase{"{\"\xC3\xA9\\n\\u0041\": tru}", " Ch: 18"},
			 FCase{"", " Line: 1 Ch: 1"},
			 FCase{"[1,2\n", " Line: 2 Ch: 1"},
			 FCase{"[1e999]", " Line: 1 Ch: 2"},
			 FCase{"7", " Line: 1 Ch: 1"}})
	{
		const std::string Error = ErrorOf(Case.Text);
		EXPECT_TRUE(EndsWith(Error, Case.Place)) << Case.Text << ": " << Error;
	}
}

TEST(JsonText, NumbersArePrintedWithSeventeenDigits)
{
	for (const double Value : {0.0, -0.0, 1.0, -17.0, 0.1, 1.0 / 3.0, 1e14, 999999999999999.0, 1e15, 1e16, 123456789012345678.0, 1e17, 1e21,
			 -2.5e-7, 1e-5, 0.0001, 5e-324, 1.7976931348623157e308, 3.0000000000000004})
	{
		char Expected[64];
		std::snprintf(Expected, sizeof(Expected), "%.17g", Value);
		EXPECT_EQ(NumberText(Value), Expected);
	}
	for (const double Value : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), std::nan("")})
	{
		EXPECT_EQ(NumberText(Value), "0");
	}
}

TEST(JsonText, LargeIntegersKeepTheirDigits)
{
	const std::string Text = R"({"a":9007199254740993,"b":-9223372036854775808,"c":18446744073709551615,"d":999999999999999,"e":-0})";
	const auto Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(ToView(Text));
	TSharedPtr<FJsonObject> Object;
	ASSERT_TRUE(FJsonSerializer::Deserialize(Reader, Object));
	EXPECT_EQ(WriteToArchive<UTF8CHAR>(Object.ToSharedRef()), Text);
	uint64 Largest = 0;
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("c"), Largest));
	EXPECT_EQ(Largest, MAX_uint64);
}

TEST(JsonText, FieldsKeepTheirOrderAndTheLastOfANameWins)
{
	const auto Reader = TJsonReaderFactory<>::Create(TEXT("{\"z\":1,\"a\":{\"y\":1,\"b\":[{}, {\"q\":0}]},\"m\":3,\"z\":4}"));
	TSharedPtr<FJsonObject> Object;
	ASSERT_TRUE(FJsonSerializer::Deserialize(Reader, Object));
	EXPECT_EQ(WriteToArchive<UTF8CHAR>(Object.ToSharedRef()), R"({"z":4,"a":{"y":1,"b":[{},{"q":0}]},"m":3})");
}

TEST(JsonText, AnUnfinishedDocumentIsWrittenAsFarAsItCame)
{
	FString Text;
	{
		const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
		Writer->WriteObjectStart();
		Writer->WriteValue(TEXT("a"), 1);
		EXPECT_FALSE(Writer->Close());
		Writer->WriteValue(TEXT("b"), 2);
	}
	EXPECT_EQ(Text, TEXT("{\"a\":1,\"b\":2"));
}

TEST(JsonText, ACharacterThatNeedsAnEscapeGetsItWhereverItStands)
{
	for (int32 Code = 0; Code < 0x120; ++Code)
	{
		const TCHAR Character = TCHAR(Code);
		for (const int32 Position : {0, 3, 6})
		{
			FString Text = TEXT("abcdef");
			Text.InsertAt(Position, Code == 0 ? TCHAR('\1') : Character);
			const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
			Object->SetStringField(Text, Text);
			FString Written;
			ASSERT_TRUE(FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Written)));
			const bool bEscaped = Code < 0x20 || Character == '"' || Character == '\\';
			EXPECT_EQ(Written.Contains(TEXT("\\")), bEscaped) << Code;
			EXPECT_EQ(Written.Len() > 2 * Text.Len() + 7, bEscaped) << Code;
			TSharedPtr<FJsonObject> Again;
			ASSERT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Written), Again)) << Code;
			EXPECT_TRUE(Again->GetStringField(Text).Equals(Text, ESearchCase::CaseSensitive)) << Code;
		}
	}
}

TEST(JsonText, WritersAddToTheTextThatIsThere)
{
	FString Text = TEXT("before ");
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("a"), TEXT("b"));
	{
		const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
		EXPECT_TRUE(FJsonSerializer::Serialize(Object, Writer));
		EXPECT_EQ(Text, TEXT("before {\"a\":\"b\"}"));
	}
	EXPECT_EQ(Text, TEXT("before {\"a\":\"b\"}")) << "a second flush adds nothing";
	FString Fresh;
	EXPECT_TRUE(FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Fresh)));
	EXPECT_EQ(Fresh, TEXT("{\"a\":\"b\"}"));
	EXPECT_EQ(Fresh.Len(), 9);
	EXPECT_EQ((*Fresh)[Fresh.Len()], TCHAR(0));
}
