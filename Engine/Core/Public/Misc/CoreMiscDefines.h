#pragma once

#include "HAL/Platform.h"

/** "Not found" of every search that answers an index. */
enum
{
	INDEX_NONE = -1
};

/** Selects constructors that give a defined value. */
enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

enum EInPlace
{
	InPlace
};

enum EPerElement
{
	PerElement
};

#define UE_DEPRECATED(Version, Message) [[deprecated(Message)]]
#define DEPRECATED(Version, Message) UE_DEPRECATED(Version, Message)

/** Opts a class out of copying. */
#define UE_NONCOPYABLE(TypeName) \
	TypeName(TypeName&&) = delete; \
	TypeName(const TypeName&) = delete; \
	TypeName& operator=(const TypeName&) = delete; \
	TypeName& operator=(TypeName&&) = delete;

/** Elements of a C array; a pointer does not compile. */
#define UE_ARRAY_COUNT(Array) (sizeof(::UE::Core::Private::ArrayCountHelper(Array)))
#define ARRAY_COUNT(Array) UE_ARRAY_COUNT(Array)

namespace UE::Core::Private
{
template <typename T, SIZE_T N>
char (&ArrayCountHelper(const T (&)[N]))[N];
}
