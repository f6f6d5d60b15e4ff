#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class FObjectInitializer;
class FReferenceCollector;
class UClass;
class UEnum;
class UField;
class UFunction;
class UObject;
class UScriptStruct;
struct FFrame;

/**
 * What HeaderTool emits about one module's reflected types, as constant data. The data of a type is read once, when the
 * type is first asked for or when ProcessNewlyLoadedUObjects() reaches it, on the game thread.
 *
 * All text is UTF-8. Names carry no C++ prefix ("Actor" for AActor) except properties, functions and enumerators, whose
 * names stand as declared ("bCanBeDamaged").
 */
namespace UECodeGen_Private
{
/** The property class that a declaration asks for. */
enum class EPropertyGenKind : uint8
{
	Bool, // `bool`, and `uint8 bFlag : 1`; see FPropertyParams::SetBit
	Byte, // `uint8`, and TEnumAsByte<E> with its enum in TypeFunc
	Int8,
	Int16,
	Int,
	Int64,
	UInt16,
	UInt32,
	UInt64,
	Float,
	Double,
	Enum, // `enum class`; Inner is the underlying number
	Name,
	Str,
	Text,
	Object, // T*, TObjectPtr<T>
	WeakObject,
	LazyObject,
	SoftObject,
	Class, // TSubclassOf<T>, UClass*; MetaClassFunc is T
	SoftClass,
	Interface,
	Struct,
	Array,
	Set,
	Map,
	Delegate,
	MulticastInlineDelegate,
	FieldPath,
	Optional
};

struct FMetaDataPairParam
{
	const char* NameUTF8;
	const char* ValueUTF8;
};

struct FPropertyParams
{
	const char* NameUTF8;
	EPropertyGenKind Kind;
	EPropertyFlags PropertyFlags;
	/** Elements of a static array, 1 for anything else. */
	uint16 ArrayDim;
	/** Bytes from the start of the owner. 0 for inner properties and for a bit-field. */
	uint32 Offset;
	/** sizeof one element's C++ type; sizeof(bool) for a bit-field. */
	uint32 ElementSize;
	/** Class of object kinds, struct, enum, or signature function of delegates; null for the other kinds. */
	UField* (*TypeFunc)();
	/** T of Class and SoftClass; null for the other kinds. */
	UClass* (*MetaClassFunc)();
	/** Sets the flag to true in a zeroed owner, from which the host finds its byte and mask. Null for all but Bool members. */
	void (*SetBit)(void* Owner);
	/** Element of Array and Set, key of Map, underlying number of Enum, value of Optional. */
	const FPropertyParams* Inner;
	/** Value of Map. */
	const FPropertyParams* Value;
	/** Function of ReplicatedUsing, or null. */
	const char* RepNotifyFuncUTF8;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

struct FEnumeratorParam
{
	/** Qualified as the engine qualifies it: "EDoor::Open" for an enum class or a namespaced enum, "DOOR_Open" for a plain one. */
	const char* NameUTF8;
	int64 Value;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

struct FEnumParams
{
	const char* PackageNameUTF8; // "/Script/Engine"
	const char* NameUTF8; // "EDoor": enums keep their prefix
	const char* CppTypeUTF8; // "EDoor", or "EDoor::Type" for a namespaced enum
	/** 0 plain, 1 namespaced, 2 enum class, as UEnum::ECppForm numbers them. */
	uint8 CppForm;
	bool bFlags;
	uint8 UnderlyingSize;
	const FEnumeratorParam* Enumerators;
	int32 NumEnumerators;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

struct FStructParams
{
	const char* PackageNameUTF8;
	const char* NameUTF8;
	UScriptStruct* (*SuperFunc)();
	/** Makes the UScriptStruct::ICppStructOps of the C++ type. */
	void* (*StructOpsFunc)();
	uint32 SizeOf;
	uint32 AlignOf;
	EStructFlags StructFlags;
	const FPropertyParams* Properties;
	int32 NumProperties;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

struct FFunctionParams
{
	/** Class that declares the function; null for a delegate's signature outside classes. */
	UClass* (*OuterFunc)();
	/** Package of a delegate's signature outside classes, else null. */
	const char* PackageNameUTF8;
	/** "Use", or "OnUsed__DelegateSignature". */
	const char* NameUTF8;
	EFunctionFlags FunctionFlags;
	/** Parameters in order, the return value last, named "ReturnValue". Offsets are the host's to lay out. */
	const FPropertyParams* Parameters;
	int32 NumParameters;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

struct FImplementedInterfaceParams
{
	UClass* (*ClassFunc)();
	/** Bytes from the object to its interface base. */
	int32 Offset;
};

struct FClassParams
{
	const char* PackageNameUTF8;
	const char* NameUTF8;
	/** Null for UObject alone. */
	UClass* (*SuperFunc)();
	/** Class of sub-objects' outers (`Within=`), or null. */
	UClass* (*WithinFunc)();
	const char* ConfigNameUTF8; // "Engine", or null
	uint32 SizeOf;
	uint32 AlignOf;
	EClassFlags ClassFlags;
	/** Runs the C++ constructor on allocated memory; null for an abstract C++ class. */
	void (*Constructor)(const FObjectInitializer&);
	/** T::AddReferencedObjects where T declares one, else null (the super's is called all the same). */
	void (*AddReferencedObjects)(UObject*, FReferenceCollector&);
	const FPropertyParams* Properties;
	int32 NumProperties;
	UFunction* (*const* Functions)();
	int32 NumFunctions;
	const FImplementedInterfaceParams* Interfaces;
	int32 NumInterfaces;
	const FMetaDataPairParam* MetaData;
	int32 NumMetaData;
};

/**
 * Each makes its type in the type's package at the first call and answers the same one afterwards; `Singleton` is the emitted
 * static that keeps it. GetClass answers a class that has its name, size, super and constructor but perhaps not yet its
 * properties, so that types may refer to each other in circles; ConstructClass completes it.
 */
COREUOBJECT_API UClass* GetClass(UClass*& Singleton, const FClassParams& Params);
COREUOBJECT_API UClass* ConstructClass(UClass*& Singleton, const FClassParams& Params);
COREUOBJECT_API UScriptStruct* ConstructScriptStruct(UScriptStruct*& Singleton, const FStructParams& Params);
COREUOBJECT_API UEnum* ConstructEnum(UEnum*& Singleton, const FEnumParams& Params);
COREUOBJECT_API UFunction* ConstructFunction(UFunction*& Singleton, const FFunctionParams& Params);

/** A static of one of these in each emitted file puts the file's types in the queue of ProcessNewlyLoadedUObjects(). */
struct FRegisterCompiledIn
{
	COREUOBJECT_API FRegisterCompiledIn(UClass* (*const* Classes)(), int32 NumClasses, UScriptStruct* (*const* Structs)(),
		int32 NumStructs, UEnum* (*const* Enums)(), int32 NumEnums);
};
}
