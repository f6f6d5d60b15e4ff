#pragma once

#include <cstdint>

/** The engine's public flag values, for readers of headers that cannot include the engine. */
namespace HeaderParser
{
namespace PropertyFlags
{
inline constexpr uint64_t Edit = 0x1;
inline constexpr uint64_t ConstParm = 0x2;
inline constexpr uint64_t BlueprintVisible = 0x4;
inline constexpr uint64_t ExportObject = 0x8;
inline constexpr uint64_t BlueprintReadOnly = 0x10;
inline constexpr uint64_t Net = 0x20;
inline constexpr uint64_t EditFixedSize = 0x40;
inline constexpr uint64_t Parm = 0x80;
inline constexpr uint64_t OutParm = 0x100;
inline constexpr uint64_t ZeroConstructor = 0x200;
inline constexpr uint64_t ReturnParm = 0x400;
inline constexpr uint64_t DisableEditOnTemplate = 0x800;
inline constexpr uint64_t Transient = 0x2000;
inline constexpr uint64_t Config = 0x4000;
inline constexpr uint64_t DisableEditOnInstance = 0x10000;
inline constexpr uint64_t EditConst = 0x20000;
inline constexpr uint64_t GlobalConfig = 0x40000;
inline constexpr uint64_t InstancedReference = 0x80000;
inline constexpr uint64_t DuplicateTransient = 0x200000;
inline constexpr uint64_t SaveGame = 0x1000000;
inline constexpr uint64_t NoClear = 0x2000000;
inline constexpr uint64_t ReferenceParm = 0x8000000;
inline constexpr uint64_t BlueprintAssignable = 0x10000000;
inline constexpr uint64_t Deprecated = 0x20000000;
inline constexpr uint64_t IsPlainOldData = 0x40000000;
inline constexpr uint64_t RepSkip = 0x80000000;
inline constexpr uint64_t RepNotify = 0x100000000;
inline constexpr uint64_t Interp = 0x200000000;
inline constexpr uint64_t NonTransactional = 0x400000000;
inline constexpr uint64_t EditorOnly = 0x800000000;
inline constexpr uint64_t NoDestructor = 0x1000000000;
inline constexpr uint64_t AutoWeak = 0x4000000000;
inline constexpr uint64_t ContainsInstancedReference = 0x8000000000;
inline constexpr uint64_t AssetRegistrySearchable = 0x10000000000;
inline constexpr uint64_t SimpleDisplay = 0x20000000000;
inline constexpr uint64_t AdvancedDisplay = 0x40000000000;
inline constexpr uint64_t Protected = 0x80000000000;
inline constexpr uint64_t BlueprintCallable = 0x100000000000;
inline constexpr uint64_t BlueprintAuthorityOnly = 0x200000000000;
inline constexpr uint64_t TextExportTransient = 0x400000000000;
inline constexpr uint64_t NonPIEDuplicateTransient = 0x800000000000;
inline constexpr uint64_t PersistentInstance = 0x2000000000000;
inline constexpr uint64_t UObjectWrapper = 0x4000000000000;
inline constexpr uint64_t HasGetValueTypeHash = 0x8000000000000;
inline constexpr uint64_t NativeAccessSpecifierPublic = 0x10000000000000;
inline constexpr uint64_t NativeAccessSpecifierProtected = 0x20000000000000;
inline constexpr uint64_t NativeAccessSpecifierPrivate = 0x40000000000000;
inline constexpr uint64_t SkipSerialization = 0x80000000000000;
}

namespace FunctionFlags
{
inline constexpr uint32_t Final = 0x1;
inline constexpr uint32_t RequiredAPI = 0x2;
inline constexpr uint32_t BlueprintAuthorityOnly = 0x4;
inline constexpr uint32_t BlueprintCosmetic = 0x8;
inline constexpr uint32_t Net = 0x40;
inline constexpr uint32_t NetReliable = 0x80;
inline constexpr uint32_t NetRequest = 0x100;
inline constexpr uint32_t Exec = 0x200;
inline constexpr uint32_t Native = 0x400;
inline constexpr uint32_t Event = 0x800;
inline constexpr uint32_t NetResponse = 0x1000;
inline constexpr uint32_t Static = 0x2000;
inline constexpr uint32_t NetMulticast = 0x4000;
inline constexpr uint32_t MulticastDelegate = 0x10000;
inline constexpr uint32_t Public = 0x20000;
inline constexpr uint32_t Private = 0x40000;
inline constexpr uint32_t Protected = 0x80000;
inline constexpr uint32_t Delegate = 0x100000;
inline constexpr uint32_t NetServer = 0x200000;
inline constexpr uint32_t HasOutParms = 0x400000;
inline constexpr uint32_t HasDefaults = 0x800000;
inline constexpr uint32_t NetClient = 0x1000000;
inline constexpr uint32_t BlueprintCallable = 0x4000000;
inline constexpr uint32_t BlueprintEvent = 0x8000000;
inline constexpr uint32_t BlueprintPure = 0x10000000;
inline constexpr uint32_t EditorOnly = 0x20000000;
inline constexpr uint32_t Const = 0x40000000;
inline constexpr uint32_t NetValidate = 0x80000000;
}

namespace ClassFlags
{
inline constexpr uint32_t Abstract = 0x1;
inline constexpr uint32_t DefaultConfig = 0x2;
inline constexpr uint32_t Config = 0x4;
inline constexpr uint32_t Transient = 0x8;
inline constexpr uint32_t Optional = 0x10;
inline constexpr uint32_t MatchedSerializers = 0x20;
inline constexpr uint32_t ProjectUserConfig = 0x40;
inline constexpr uint32_t Native = 0x80;
inline constexpr uint32_t NotPlaceable = 0x200;
inline constexpr uint32_t PerObjectConfig = 0x400;
inline constexpr uint32_t EditInlineNew = 0x1000;
inline constexpr uint32_t CollapseCategories = 0x2000;
inline constexpr uint32_t Interface = 0x4000;
inline constexpr uint32_t PerPlatformConfig = 0x8000;
inline constexpr uint32_t Const = 0x10000;
inline constexpr uint32_t NeedsDeferredDependencyLoading = 0x20000;
inline constexpr uint32_t MinimalAPI = 0x80000;
inline constexpr uint32_t RequiredAPI = 0x100000;
inline constexpr uint32_t DefaultToInstanced = 0x200000;
inline constexpr uint32_t Hidden = 0x1000000;
inline constexpr uint32_t Deprecated = 0x2000000;
inline constexpr uint32_t HideDropDown = 0x4000000;
inline constexpr uint32_t GlobalUserConfig = 0x8000000;
inline constexpr uint32_t Intrinsic = 0x10000000;
inline constexpr uint32_t ConfigDoNotCheckDefaults = 0x40000000;
}

namespace StructFlags
{
inline constexpr uint32_t Native = 0x1;
inline constexpr uint32_t NoExport = 0x8;
inline constexpr uint32_t Atomic = 0x10;
inline constexpr uint32_t Immutable = 0x20;
inline constexpr uint32_t RequiredAPI = 0x200;
}
}
