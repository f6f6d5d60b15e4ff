#pragma once

#include "CoreMinimal.h"

/** What a JSON value is. */
enum class EJson
{
	None,
	Null,
	String,
	Number,
	Boolean,
	Array,
	Object
};

/** Tokens of a writer, between which it places blanks and commas. */
enum class EJsonToken
{
	None,
	Comma,
	CurlyOpen,
	CurlyClose,
	SquareOpen,
	SquareClose,
	Colon,
	String,
	Number,
	True,
	False,
	Null,
	Identifier
};
