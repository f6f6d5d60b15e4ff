#include "Parser/SpecifierTables.h"

#include "HeaderParser/Flags.h"

namespace HeaderParser
{
namespace
{
/** A specifier's meaning: flags to set, and a metadata key to set to MetaValue or, where that is empty, to the specifier's own value. */
struct FSpecifierRow
{
	std::string_view Name;
	uint64_t Flags = 0;
	std::string_view MetaKey = {};
	std::string_view MetaValue = {};
};

constexpr FSpecifierRow PropertyRows[] = {
	{"EditAnywhere", PropertyFlags::Edit},
	{"EditInstanceOnly", PropertyFlags::Edit | PropertyFlags::DisableEditOnTemplate},
	{"EditDefaultsOnly", PropertyFlags::Edit | PropertyFlags::DisableEditOnInstance},
	{"VisibleAnywhere", PropertyFlags::Edit | PropertyFlags::EditConst},
	{"VisibleInstanceOnly", PropertyFlags::Edit | PropertyFlags::EditConst | PropertyFlags::DisableEditOnTemplate},
	{"VisibleDefaultsOnly", PropertyFlags::Edit | PropertyFlags::EditConst | PropertyFlags::DisableEditOnInstance},
	{"BlueprintReadWrite", PropertyFlags::BlueprintVisible},
	{"BlueprintReadOnly", PropertyFlags::BlueprintVisible | PropertyFlags::BlueprintReadOnly},
	{"BlueprintSetter", PropertyFlags::BlueprintVisible, "BlueprintSetter"},
	{"BlueprintGetter", 0, "BlueprintGetter"},
	{"BlueprintAssignable", PropertyFlags::BlueprintAssignable},
	{"BlueprintCallable", PropertyFlags::BlueprintCallable},
	{"BlueprintAuthorityOnly", PropertyFlags::BlueprintAuthorityOnly},
	{"Config", PropertyFlags::Config},
	{"GlobalConfig", PropertyFlags::Config | PropertyFlags::GlobalConfig},
	{"Localized", 0},
	{"Transient", PropertyFlags::Transient},
	{"DuplicateTransient", PropertyFlags::DuplicateTransient},
	{"NonPIETransient", PropertyFlags::NonPIEDuplicateTransient},
	{"NonPIEDuplicateTransient", PropertyFlags::NonPIEDuplicateTransient},
	{"TextExportTransient", PropertyFlags::TextExportTransient},
	{"SkipSerialization", PropertyFlags::SkipSerialization},
	{"NonTransactional", PropertyFlags::NonTransactional},
	{"Export", PropertyFlags::ExportObject},
	{"EditInline", 0, "EditInline", "true"},
	{"Instanced", PropertyFlags::PersistentInstance | PropertyFlags::ExportObject | PropertyFlags::InstancedReference, "EditInline",
		"true"},
	{"NoClear", PropertyFlags::NoClear},
	{"EditFixedSize", PropertyFlags::EditFixedSize},
	{"Replicated", PropertyFlags::Net},
	{"ReplicatedUsing", PropertyFlags::Net | PropertyFlags::RepNotify},
	{"NotReplicated", PropertyFlags::RepSkip},
	{"RepRetry", 0},
	{"Interp", PropertyFlags::Edit | PropertyFlags::BlueprintVisible | PropertyFlags::Interp},
	{"AssetRegistrySearchable", PropertyFlags::AssetRegistrySearchable},
	{"SimpleDisplay", PropertyFlags::SimpleDisplay},
	{"AdvancedDisplay", PropertyFlags::AdvancedDisplay},
	{"SaveGame", PropertyFlags::SaveGame},
	{"FieldNotify", 0, "FieldNotify"},
	{"Getter", 0, "NativeGetter"},
	{"Setter", 0, "NativeSetter"},
	{"Category", 0, "Category"},
	{"DisplayName", 0, "DisplayName"},
	{"Ref", 0},
	{"Const", 0},
};

constexpr FSpecifierRow FunctionRows[] = {
	{"BlueprintCallable", FunctionFlags::BlueprintCallable},
	{"BlueprintPure", FunctionFlags::BlueprintCallable | FunctionFlags::BlueprintPure},
	{"BlueprintImplementableEvent", FunctionFlags::Event | FunctionFlags::BlueprintEvent},
	{"BlueprintNativeEvent", FunctionFlags::Event | FunctionFlags::BlueprintEvent | FunctionFlags::Native},
	{"BlueprintAuthorityOnly", FunctionFlags::BlueprintAuthorityOnly},
	{"BlueprintCosmetic", FunctionFlags::BlueprintCosmetic},
	{"BlueprintInternalUseOnly", 0, "BlueprintInternalUseOnly", "true"},
	{"BlueprintGetter", FunctionFlags::BlueprintCallable | FunctionFlags::BlueprintPure, "BlueprintGetter"},
	{"BlueprintSetter", FunctionFlags::BlueprintCallable, "BlueprintSetter"},
	{"CallInEditor", 0, "CallInEditor", "true"},
	{"CustomThunk", 0, "CustomThunk", "true"},
	{"Exec", FunctionFlags::Exec},
	{"Server", FunctionFlags::Net | FunctionFlags::NetServer},
	{"Client", FunctionFlags::Net | FunctionFlags::NetClient},
	{"NetMulticast", FunctionFlags::Net | FunctionFlags::NetMulticast},
	{"ServiceRequest", FunctionFlags::Net | FunctionFlags::NetReliable | FunctionFlags::NetRequest},
	{"ServiceResponse", FunctionFlags::Net | FunctionFlags::NetReliable | FunctionFlags::NetResponse},
	{"Reliable", FunctionFlags::NetReliable},
	{"Unreliable", 0},
	{"WithValidation", FunctionFlags::NetValidate},
	{"SealedEvent", FunctionFlags::Final},
	{"FieldNotify", 0, "FieldNotify"},
	{"Variadic", 0, "Variadic", "true"},
	{"Category", 0, "Category"},
	{"DisplayName", 0, "DisplayName"},
};

constexpr FSpecifierRow ClassRows[] = {
	{"Abstract", ClassFlags::Abstract},
	{"Blueprintable", 0, "IsBlueprintBase", "true"},
	{"NotBlueprintable", 0, "IsBlueprintBase", "false"},
	{"BlueprintType", 0, "BlueprintType", "true"},
	{"NotBlueprintType", 0, "NotBlueprintType", "true"},
	{"ClassGroup", 0, "ClassGroupNames"},
	{"ComponentWrapperClass", 0, "IgnoreCategoryKeywordsInSubclasses", "true"},
	{"Config", ClassFlags::Config},
	{"PerObjectConfig", ClassFlags::PerObjectConfig},
	{"PerPlatformConfig", ClassFlags::PerPlatformConfig},
	{"ConfigDoNotCheckDefaults", ClassFlags::ConfigDoNotCheckDefaults},
	{"DefaultConfig", ClassFlags::DefaultConfig},
	{"GlobalUserConfig", ClassFlags::GlobalUserConfig},
	{"ProjectUserConfig", ClassFlags::ProjectUserConfig},
	{"EditorConfig", 0, "EditorConfig"},
	{"Const", ClassFlags::Const},
	{"ConversionRoot", 0, "IsConversionRoot", "true"},
	{"CustomConstructor", 0},
	{"CustomFieldNotify", 0},
	{"CustomThunkTemplates", 0},
	{"DefaultToInstanced", ClassFlags::DefaultToInstanced},
	{"Deprecated", ClassFlags::Deprecated | ClassFlags::NotPlaceable},
	{"EditInlineNew", ClassFlags::EditInlineNew},
	{"NotEditInlineNew", 0},
	{"Experimental", 0, "DevelopmentStatus", "Experimental"},
	{"EarlyAccessPreview", 0, "DevelopmentStatus", "EarlyAccess"},
	{"Hidden", ClassFlags::Hidden},
	{"HideDropdown", ClassFlags::HideDropDown},
	{"Interface", ClassFlags::Interface},
	{"Intrinsic", ClassFlags::Intrinsic},
	{"MatchedSerializers", ClassFlags::MatchedSerializers},
	{"MinimalAPI", ClassFlags::MinimalAPI},
	{"NeedsDeferredDependencyLoading", ClassFlags::NeedsDeferredDependencyLoading},
	{"NoExport", 0},
	{"NotPlaceable", ClassFlags::NotPlaceable},
	{"Placeable", 0},
	{"Optional", ClassFlags::Optional},
	{"SparseClassDataType", 0, "SparseClassDataTypes"},
	{"SparseClassDataTypes", 0, "SparseClassDataTypes"},
	{"Transient", ClassFlags::Transient},
	{"NonTransient", 0},
	{"Within", 0},
	{"DisplayName", 0, "DisplayName"},
	{"Category", 0, "Category"},
	{"AdvancedClassDisplay", 0, "AdvancedClassDisplay", "true"},
	{"CollapseCategories", ClassFlags::CollapseCategories},
	{"DontCollapseCategories", 0},
	{"HideCategories", 0, "HideCategories"},
	{"ShowCategories", 0, "ShowCategories"},
	{"HideFunctions", 0, "HideFunctions"},
	{"ShowFunctions", 0, "ShowFunctions"},
	{"PrioritizeCategories", 0, "PrioritizeCategories"},
	{"AutoExpandCategories", 0, "AutoExpandCategories"},
	{"AutoCollapseCategories", 0, "AutoCollapseCategories"},
	{"DontAutoCollapseCategories", 0, "DontAutoCollapseCategories"},
};

constexpr FSpecifierRow StructRows[] = {
	{"BlueprintType", 0, "BlueprintType", "true"},
	{"BlueprintInternalUseOnly", 0, "BlueprintInternalUseOnly", "true"},
	{"BlueprintInternalUseOnlyHierarchical", 0, "BlueprintInternalUseOnlyHierarchical", "true"},
	{"NoExport", StructFlags::NoExport},
	{"Atomic", StructFlags::Atomic},
	{"Immutable", StructFlags::Immutable | StructFlags::Atomic},
	{"DisplayName", 0, "DisplayName"},
	{"IsAlwaysAccessible", 0},
	{"IsCoreType", 0},
	{"HasDefaults", 0},
	{"HasNoOpConstructor", 0},
	{"FastArraySerializer", 0},
	{"Category", 0, "Category"},
};

constexpr FSpecifierRow EnumRows[] = {
	{"BlueprintType", 0, "BlueprintType", "true"},
	{"Flags", 0},
	{"Category", 0, "Category"},
	{"DisplayName", 0, "DisplayName"},
};

template <size_t Count>
const FSpecifierRow* FindRow(const FSpecifierRow (&Rows)[Count], const std::string_view Name)
{
	for (const FSpecifierRow& Row : Rows)
	{
		if (EqualsIgnoringCase(Row.Name, Name))
		{
			return &Row;
		}
	}
	return nullptr;
}

std::string JoinValues(const FSpecifier& Specifier)
{
	std::string Text;
	for (const std::string& Value : Specifier.Values)
	{
		Text += (Text.empty() ? "" : " ") + Value;
	}
	return Text;
}

/** Answers the flags through Flags; metadata given in `meta=` wins over what a specifier implies. */
template <size_t Count>
bool ApplyRows(FTokenCursor& Cursor, const FSpecifierRow (&Rows)[Count], const std::string_view What, const FSpecifierList& List,
	uint64_t& Flags, FMetaData& MetaData)
{
	for (const FSpecifier& Specifier : List.Specifiers)
	{
		const FSpecifierRow* const Row = FindRow(Rows, Specifier.Name);
		if (!Row)
		{
			return Cursor.Fail(Specifier.Position, "expected a " + std::string(What) + " specifier, found '" + Specifier.Name + "'");
		}
		Flags |= Row->Flags;
		if (!Row->MetaKey.empty())
		{
			MetaData.Set(Row->MetaKey, Row->MetaValue.empty() ? JoinValues(Specifier) : std::string(Row->MetaValue));
		}
	}
	for (const auto& [Key, Value] : List.MetaData.Pairs())
	{
		MetaData.Set(Key, Value);
	}
	return true;
}

uint64_t AccessFlags(const EAccess Access)
{
	switch (Access)
	{
		case EAccess::Public:
			return PropertyFlags::NativeAccessSpecifierPublic;
		case EAccess::Protected:
			return PropertyFlags::NativeAccessSpecifierProtected | PropertyFlags::Protected;
		default:
			return PropertyFlags::NativeAccessSpecifierPrivate;
	}
}
}

bool ApplyPropertySpecifiers(FTokenCursor& Cursor, FPropertyDeclaration& Property)
{
	const FSpecifierList& List = Property.Specifiers;
	if (!ApplyRows(Cursor, PropertyRows, "property", List, Property.Flags, Property.MetaData))
	{
		return false;
	}
	Property.Flags |= AccessFlags(Property.Access);
	const bool bReadWrite = List.Has("BlueprintReadWrite") || List.Has("BlueprintSetter") || List.Has("Interp");
	if (List.Has("BlueprintGetter"))
	{
		Property.Flags |= PropertyFlags::BlueprintVisible | (bReadWrite ? 0 : PropertyFlags::BlueprintReadOnly);
	}
	if (const FSpecifier* const RepNotify = List.Find("ReplicatedUsing"))
	{
		if (RepNotify->Values.size() != 1)
		{
			return Cursor.Fail(RepNotify->Position, "expected the name of a function after ReplicatedUsing, found none");
		}
		Property.RepNotifyFunction = RepNotify->Values[0];
	}
	return true;
}

bool ApplyFunctionSpecifiers(FTokenCursor& Cursor, FFunctionDeclaration& Function)
{
	uint64_t Flags = Function.Flags;
	if (!ApplyRows(Cursor, FunctionRows, "function", Function.Specifiers, Flags, Function.MetaData))
	{
		return false;
	}
	const FSpecifier* const Pure = Function.Specifiers.Find("BlueprintPure");
	const bool bImpure = Pure && Pure->Values.size() == 1 && EqualsIgnoringCase(Pure->Values[0], "false");
	if (bImpure)
	{
		Flags &= ~static_cast<uint64_t>(FunctionFlags::BlueprintPure);
	}
	if (!(Flags & FunctionFlags::BlueprintEvent))
	{
		Flags |= FunctionFlags::Native | (Function.bVirtual || Function.bOverride ? 0 : FunctionFlags::Final);
	}
	if (Flags & FunctionFlags::Net)
	{
		Flags = (Flags | FunctionFlags::Event) & ~static_cast<uint64_t>(FunctionFlags::Final);
	}
	const bool bHasOutput = Function.ReturnValue || (Flags & FunctionFlags::HasOutParms);
	if ((Flags & FunctionFlags::BlueprintCallable) && (Flags & FunctionFlags::Const) && bHasOutput && !bImpure &&
		!(Flags & FunctionFlags::BlueprintEvent))
	{
		Flags |= FunctionFlags::BlueprintPure;
	}
	Function.Flags = static_cast<uint32_t>(Flags);
	return true;
}

bool ApplyClassSpecifiers(FTokenCursor& Cursor, FClassDeclaration& Class)
{
	const FSpecifierList& List = Class.Specifiers;
	uint64_t Flags = Class.Flags;
	if (!ApplyRows(Cursor, ClassRows, "class", List, Flags, Class.MetaData))
	{
		return false;
	}
	Class.Flags = static_cast<uint32_t>(Flags);
	Class.bNoExport = List.Has("NoExport");
	// A class that Blueprints derive from can be a variable's type too.
	if (List.Has("Blueprintable") && !Class.MetaData.Has("BlueprintType") && !List.Has("NotBlueprintType"))
	{
		Class.MetaData.Set("BlueprintType", "true");
	}
	if (const FSpecifier* const Config = List.Find("Config"); Config && Config->Values.size() == 1)
	{
		Class.ConfigName = Config->Values[0];
	}
	if (const FSpecifier* const Within = List.Find("Within"); Within && Within->Values.size() == 1)
	{
		Class.Within = Within->Values[0];
	}
	return true;
}

bool ApplyStructSpecifiers(FTokenCursor& Cursor, FStructDeclaration& Struct)
{
	uint64_t Flags = StructFlags::Native;
	if (!ApplyRows(Cursor, StructRows, "struct", Struct.Specifiers, Flags, Struct.MetaData))
	{
		return false;
	}
	Struct.Flags = static_cast<uint32_t>(Flags);
	Struct.bNoExport = Struct.Specifiers.Has("NoExport");
	return true;
}

bool ApplyEnumSpecifiers(FTokenCursor& Cursor, FEnumDeclaration& Enum)
{
	uint64_t Flags = 0;
	Enum.bFlags = Enum.Specifiers.Has("Flags");
	return ApplyRows(Cursor, EnumRows, "enum", Enum.Specifiers, Flags, Enum.MetaData);
}
}
