#include "IntrinsicClasses.h"

#include "ObjectBootstrap.h"
#include "UObject/GeneratedCppIncludes.h"
#include "UObject/Interface.h"
#include "UObject/MetaData.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

using namespace UECodeGen_Private;

namespace
{
/** The first classes are made before there is a class of classes or a package to put them in; this sets both afterwards. */
bool GBootstrapped = false;
void EnsureBootstrapped();

UClass* AllocateUnregisteredClass()
{
	void* const Memory = FMemory::Malloc(sizeof(UClass), alignof(UClass));
	FMemory::Memzero(Memory, sizeof(UClass));
	FObjectBootstrap::FIdentity& Identity = FObjectBootstrap::Pending;
	Identity = FObjectBootstrap::FIdentity();
	Identity.Memory = Memory;
	Identity.Flags = static_cast<EObjectFlags>(RF_Public | RF_Transient | RF_MarkAsNative);
	Identity.bRegister = false;
	return ::new (Memory) UClass();
}

template <typename T>
constexpr auto GetReferenceFunction()
{
	return static_cast<void (*)(UObject*, FReferenceCollector&)>(&T::AddReferencedObjects);
}

}

template <typename T, typename TSuper>
struct TIntrinsicClass
{
	static inline UClass* Singleton = nullptr;
	static const FClassParams& GetParams(const char* NameUTF8)
	{
		static const FClassParams Params = {T::StaticPackageUTF8(), NameUTF8, std::is_same_v<T, UObject> ? nullptr : &TSuper::StaticClass,
			nullptr, nullptr, sizeof(T), alignof(T), T::StaticClassFlags | CLASS_Intrinsic, &T::__DefaultConstructor,
			GetReferenceFunction<T>(), nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0};
		return Params;
	}
};

#define IMPLEMENT_CORE_INTRINSIC_CLASS(TClass, TSuperClass) \
	void TClass::__DefaultConstructor(const FObjectInitializer& X) { ::new (static_cast<void*>(X.GetObj())) TClass(X); } \
	UClass* TClass::StaticClass() \
	{ \
		if (!TIntrinsicClass<TClass, TSuperClass>::Singleton) \
		{ \
			EnsureBootstrapped(); \
			UECodeGen_Private::GetClass( \
				TIntrinsicClass<TClass, TSuperClass>::Singleton, TIntrinsicClass<TClass, TSuperClass>::GetParams(&(#TClass)[1])); \
			TIntrinsicClass<TClass, TSuperClass>::Singleton->ClassCastFlags |= TClass::StaticClassCastFlags; \
		} \
		return TIntrinsicClass<TClass, TSuperClass>::Singleton; \
	} \
	UClass* Z_Construct_UClass_##TClass##_NoRegister() { return TClass::StaticClass(); } \
	UClass* Z_Construct_UClass_##TClass() \
	{ \
		TClass::StaticClass(); \
		return ConstructClass( \
			TIntrinsicClass<TClass, TSuperClass>::Singleton, TIntrinsicClass<TClass, TSuperClass>::GetParams(&(#TClass)[1])); \
	}

namespace
{
template <typename T, typename TSuper>
void FillFirstClass(const char* NameUTF8)
{
	UClass* const Class = TIntrinsicClass<T, TSuper>::Singleton;
	Class->PropertiesSize = sizeof(T);
	Class->MinAlignment = alignof(T);
	Class->ClassFlags = T::StaticClassFlags | CLASS_Native | CLASS_Intrinsic | CLASS_MatchedSerializers;
	Class->ClassCastFlags = T::StaticClassCastFlags;
	Class->ClassConstructor = &T::__DefaultConstructor;
	Class->ClassAddReferencedObjects = GetReferenceFunction<T>();
	FObjectBootstrap::SetIdentityUnregistered(Class, TIntrinsicClass<UClass, UStruct>::Singleton, FName(UTF8_TO_TCHAR(NameUTF8)));
}

/**
 * A class is an object whose class is Class, in a package whose class is Package: those classes and their supers are made by
 * hand, then get their package and their place in the tables.
 */
void EnsureBootstrapped()
{
	if (GBootstrapped)
	{
		return;
	}
	GBootstrapped = true;
	UClass** const First[] = {&TIntrinsicClass<UObject, UObject>::Singleton, &TIntrinsicClass<UField, UObject>::Singleton,
		&TIntrinsicClass<UStruct, UField>::Singleton, &TIntrinsicClass<UClass, UStruct>::Singleton,
		&TIntrinsicClass<UPackage, UObject>::Singleton};
	for (UClass** const Class : First)
	{
		*Class = AllocateUnregisteredClass();
	}
	FillFirstClass<UObject, UObject>("Object");
	FillFirstClass<UField, UObject>("Field");
	FillFirstClass<UStruct, UField>("Struct");
	FillFirstClass<UClass, UStruct>("Class");
	FillFirstClass<UPackage, UObject>("Package");

	UPackage* const Package = CreatePackage(TEXT("/Script/CoreUObject"));
	Package->SetPackageFlags(PKG_CompiledIn | PKG_ContainsScript);
	Package->SetInternalFlags(EInternalObjectFlags::Native);
	for (UClass** const Class : First)
	{
		FObjectBootstrap::SetOuterUnregistered(*Class, Package);
		FObjectBootstrap::Register(*Class, EInternalObjectFlags::Native);
	}
	const auto Join = [](UClass* Class, UClass* Super)
	{
		Class->SetSuperStruct(Super);
		Class->Bind();
	};
	Join(*First[1], *First[0]);
	Join(*First[2], *First[1]);
	Join(*First[3], *First[2]);
	Join(*First[4], *First[0]);
	for (UClass** const Class : First)
	{
		(*Class)->ClassWithin = *First[0];
	}
}
}

IMPLEMENT_CORE_INTRINSIC_CLASS(UObject, UObject)
IMPLEMENT_CORE_INTRINSIC_CLASS(UField, UObject)
IMPLEMENT_CORE_INTRINSIC_CLASS(UStruct, UField)
IMPLEMENT_CORE_INTRINSIC_CLASS(UScriptStruct, UStruct)
IMPLEMENT_CORE_INTRINSIC_CLASS(UFunction, UStruct)
IMPLEMENT_CORE_INTRINSIC_CLASS(UDelegateFunction, UFunction)
IMPLEMENT_CORE_INTRINSIC_CLASS(USparseDelegateFunction, UDelegateFunction)
IMPLEMENT_CORE_INTRINSIC_CLASS(UEnum, UField)
IMPLEMENT_CORE_INTRINSIC_CLASS(UClass, UStruct)
IMPLEMENT_CORE_INTRINSIC_CLASS(UPackage, UObject)
IMPLEMENT_CORE_INTRINSIC_CLASS(UInterface, UObject)
IMPLEMENT_CORE_INTRINSIC_CLASS(UMetaData, UObject)
IMPLEMENT_CORE_INTRINSIC_CLASS(UObjectRedirector, UObject)

UInterface::UInterface(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}

namespace
{
/** The one function of Object itself: a Blueprint's event graph by its entry point. */
void AddExecuteUbergraph()
{
	static UFunction* Singleton = nullptr;
	static constexpr FPropertyParams Parameters[] = {
		{"EntryPoint", EPropertyGenKind::Int, CPF_Parm | CPF_ZeroConstructor | CPF_IsPlainOldData | CPF_NoDestructor, 1, 0, sizeof(int32),
			nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0}};
	static const FFunctionParams Params = {
		&UObject::StaticClass, nullptr, "ExecuteUbergraph", FUNC_Event | FUNC_Public | FUNC_BlueprintEvent, Parameters, 1, nullptr, 0};
	UFunction* const Function = ConstructFunction(Singleton, Params);
	UObject::StaticClass()->Children = Function;
	UObject::StaticClass()->AddFunctionToFunctionMap(Function, Function->GetFName());
}
}

void ConstructIntrinsicClasses()
{
	static bool bDone = false;
	if (bDone)
	{
		return;
	}
	bDone = true;
	UClass* const Classes[] = {Z_Construct_UClass_UObject(), Z_Construct_UClass_UField(), Z_Construct_UClass_UStruct(),
		Z_Construct_UClass_UScriptStruct(), Z_Construct_UClass_UFunction(), Z_Construct_UClass_UDelegateFunction(),
		Z_Construct_UClass_USparseDelegateFunction(), Z_Construct_UClass_UEnum(), Z_Construct_UClass_UClass(),
		Z_Construct_UClass_UPackage(), Z_Construct_UClass_UInterface(), Z_Construct_UClass_UMetaData(),
		Z_Construct_UClass_UObjectRedirector()};
	AddExecuteUbergraph();
	for (const UClass* const Class : Classes)
	{
		Class->GetDefaultObject();
	}
}

bool UObjectInitialized()
{
	return GBootstrapped;
}
