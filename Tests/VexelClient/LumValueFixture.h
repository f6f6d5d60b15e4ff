#pragma once

#include "Dom/JsonObject.h"
#include "EditorFixture.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "LumTestTypes.h"

#include <string>

/** Tests that read and write the values of one object by their paths. */
class FLumValueTest : public FEditorTest
{
protected:
	virtual void SetUp() override;
	/** No transaction outlives its test. */
	virtual void TearDown() override;

	static std::string Utf8(const FString& Text) { return TCHAR_TO_UTF8(*Text); }
	/** "ok", or the message with its context lines behind commas. */
	static std::string Say(const TVexelExpected<void>& Result);
	/** A JSON text of any kind; null for text that is no JSON. */
	static TSharedPtr<FJsonValue> Parse(const char* Json);

	TVexelExpected<TSharedRef<ILumProperty>> Resolve(const TCHAR* Path) const;
	/** Gives the property the value of the JSON text, and says how that went. */
	std::string Import(const TCHAR* Path, const char* Json) const;
	/** The property's exported value as JSON text, or the error. */
	std::string Value(const TCHAR* Path) const;
	/** The compound of the property. */
	TSharedRef<ILumCompound> Compound(const TCHAR* Path) const;
	ILumCollectionCompound& Collection(const TCHAR* Path);
	/** The engine's text of every property of the object: what must not change where a value is refused. */
	static std::string Snapshot(const UObject& Object);

	/** What Resolve begins from; the test's thing by itself. */
	UObject* Root = nullptr;
	ULumThing* Thing = nullptr;
	FLumContext Context{MakeShared<FVexelBlueprintMapping>()};

private:
	TSharedPtr<ILumCompound> LastCompound;
};
