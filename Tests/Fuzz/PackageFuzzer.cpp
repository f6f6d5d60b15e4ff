#include "Dom/JsonObject.h"
#include "PackageInspector.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{
TUniquePtr<FLinkerLoad> Open(const uint8_t* Data, size_t Size, UPackage* Package)
{
	FString Error;
	TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(Data, int32(Size)), TEXT("fuzz"), Package, Error);
	if (!Linker && Error.IsEmpty())
	{
		abort();
	}
	return Linker;
}

/** Writes the loaded package as it came; what can be written can be read. */
void WriteBack(FLinkerLoad& Linker)
{
	FLinkerSave Saver(Linker.LinkerRoot, TEXT("fuzz"));
	Saver.StartFromTablesOf(Linker);
	FString Error;
	const TArray<uint8> File = Saver.WriteExports(Error) ? Saver.MakeFile(Error) : TArray<uint8>();
	if (File.IsEmpty() && Error.IsEmpty())
	{
		abort();
	}
}

void Discard(UPackage* Package)
{
	static int32 NumRuns = 0;
	constexpr int32 RunsBetweenCollections = 32;
	ForEachObjectWithPackage(Package, [](UObject* Object)
		{
			Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
			return true; });
	if (++NumRuns % RunsBetweenCollections == 0)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
}
}

/** Names and stand-ins outlive a run by design, so every run would be searched for leaks, which takes most of the time. */
extern "C" const char* __asan_default_options()
{
	return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	ProcessNewlyLoadedUObjects();
	// Every damaged object is told of; a run has millions.
	LogClass.SetVerbosity(ELogVerbosity::NoLogging);
	LogUObjectGlobals.SetVerbosity(ELogVerbosity::NoLogging);
	return 0;
}

/** Inspects the bytes as a package, loads its objects, and writes them back. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	if (const TUniquePtr<FLinkerLoad> Linker = Open(Data, Size, nullptr))
	{
		TArray<FString> Errors;
		InspectPackage(*Linker, Errors);
	}
	UPackage* const Package = CreatePackage(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(TEXT("/Fuzz/Package"))).ToString());
	if (const TUniquePtr<FLinkerLoad> Linker = Open(Data, Size, Package))
	{
		Linker->LoadAllObjects();
		Linker->TakeFingerprints();
		WriteBack(*Linker);
	}
	Discard(Package);
	return 0;
}
