#include "SampleNodes.h"

#include "Containers/StringConv.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "K2Node_CallFunction.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_SwitchInteger.h"
#include "K2Node_Timeline.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace
{
const std::filesystem::path Samples = std::filesystem::path(VEXEL_SOURCE_DIR) / ".." / "shared" / "samples";

std::string ToUtf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

/** Texts of graphs that are no Blueprint's (materials, particles) name no K2 class. */
bool HasBlueprintNode(const std::filesystem::path& Path)
{
	std::ifstream File(Path);
	const std::string Text((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
	return Text.find("K2Node_") != std::string::npos;
}

/** A difference that is right as it is. */
struct FAcceptedDifference
{
	/** Class of the node without "K2Node_"; null for any. */
	const TCHAR* Class;
	/** Null for any. */
	const TCHAR* Pin;
	/** Whether it is so in packages of engine 4 alone. */
	bool bOldPackages;
	const char* What;
	const char* Reason;
};

const FAcceptedDifference AcceptedDifferences[] = {
	{nullptr, nullptr, true, "default", "early engines wrote no generated defaults"},
	{nullptr, nullptr, true, "sub-category",
		"engines before 5 had one kind of number with a point, which is loaded as the wider one until the node is reconstructed"},
	{TEXT("CallFunction"), TEXT("WorldContextObject"), true, "const", "the libraries declared their world contexts without const"},
	{TEXT("CallFunction"), TEXT("Key"), true, "extra", "Print String had no key before engine 5"},
	{TEXT("CallFunction"), TEXT("bFlushInput"), true, "extra", "the input modes had no choice of flushing input before engine 5"},
	{TEXT("CallFunction"), TEXT("WorldContextObject"), false, "hidden",
		"a text does not say whether the Blueprint that it was copied from has a world"},
	{TEXT("CallFunction"), TEXT("DrawDebugType"), false, "default",
		"this one text has the value without having generated it, unlike every other enumeration pin"},
};

/** Why the definition of a real node is not here. */
struct FMissingDefinition
{
	/** Stands in what the node says of itself. */
	const char* Mark;
	const char* Reason;
};

const FMissingDefinition MissingDefinitions[] = {
	{"/Script/AirSim.", "a native class of the plug-in AirSim"},
	{"/Script/CesiumRuntime.", "a native class of the plug-in Cesium"},
	{"/Script/Schola.", "a native class of the plug-in Schola"},
	{"/Niagara/Enums/", "an asset of the plug-in Niagara, of which the text has the path alone"},
	{"WidgetBlueprint", "a widget of the tree, which the compiler of widget Blueprints alone makes a variable"},
	{"bSelfContext=True", "a member of the Blueprint that the text was copied from"},
};

const char* FindReasonForMissing(const std::string& Identity)
{
	const FMissingDefinition* const Found = std::find_if(std::begin(MissingDefinitions), std::end(MissingDefinitions),
		[&Identity](const FMissingDefinition& Row)
		{ return Identity.find(Row.Mark) != std::string::npos; });
	return Found != std::end(MissingDefinitions) ? Found->Reason : nullptr;
}

/** Copies the reflected settings of the node's own classes, without what every node has, and the pins that a user added. */
void CopyIdentity(const UK2Node& From, UK2Node& To)
{
	for (TFieldIterator<FProperty> Property(From.GetClass()); Property; ++Property)
	{
		if (Property->GetOwnerClass()->IsChildOf(UK2Node::StaticClass()))
		{
			Property->CopyCompleteValue_InContainer(&To, &From);
		}
	}
	const UK2Node_EditablePinBase* const Editable = Cast<UK2Node_EditablePinBase>(&From);
	for (int32 Index = 0; Editable && Index < Editable->UserDefinedPins.Num(); ++Index)
	{
		CastChecked<UK2Node_EditablePinBase>(&To)->UserDefinedPins.Add(MakeShared<FUserPinInfo>(*Editable->UserDefinedPins[Index]));
	}
	// A text may leave out what follows from the function.
	if (UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(&To))
	{
		Call->bIsPureFunc = Call->GetTargetFunction()->HasAnyFunctionFlags(FUNC_BlueprintPure);
	}
}

/** Chooses on the fresh node the classes that the sample's user chose, which make a node take its class's pins. */
void ChooseClasses(const UK2Node& Sample, UK2Node& Fresh)
{
	for (const UEdGraphPin* const Pin : Sample.Pins)
	{
		UEdGraphPin* const Own = Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Class ? Fresh.FindPin(Pin->PinName, EGPD_Input)
																						 : nullptr;
		if (Own && Pin->DefaultObject && Pin->DefaultObject != Own->DefaultObject)
		{
			// Not by the schema, which would refuse a class of a project that is not here.
			Own->DefaultObject = Pin->DefaultObject;
			Fresh.PinDefaultValueChanged(Own);
		}
	}
}

/** What the node is about, as its text says it. */
std::string DescribeIdentity(const UK2Node& Node)
{
	const UBlueprint* const Blueprint = Node.GetBlueprint();
	std::string Identity = Blueprint ? ToUtf8(Blueprint->GetClass()->GetName()) : "";
	for (TFieldIterator<FProperty> Property(Node.GetClass()); Property; ++Property)
	{
		const bool bIsIdentity = Property->GetOwnerClass()->IsChildOf(UK2Node::StaticClass()) &&
			Property->GetOwnerClass() != UK2Node::StaticClass();
		if (bIsIdentity && !Property->Identical_InContainer(&Node, Node.GetClass()->GetDefaultObject()))
		{
			FString Text;
			Property->ExportTextItem_InContainer(Text, &Node, nullptr, nullptr, PPF_None);
			Identity += " " + ToUtf8(Property->GetName()) + "=" + ToUtf8(Text);
		}
	}
	return Identity;
}

UK2Node* MakeFresh(UK2Node& Sample)
{
	UK2Node* const Fresh = NewObject<UK2Node>(Sample.GetGraph(), Sample.GetClass(), NAME_None, RF_Transient);
	CopyIdentity(Sample, *Fresh);
	// How many outputs these have is known by their pins alone.
	if (Sample.IsA<UK2Node_ExecutionSequence>() || Sample.IsA<UK2Node_SwitchInteger>())
	{
		TArray<UEdGraphPin*> Old = Sample.Pins;
		Fresh->ReallocatePinsDuringReconstruction(Old);
	}
	else
	{
		Fresh->AllocateDefaultPins();
	}
	ChooseClasses(Sample, *Fresh);
	return Fresh;
}

using FFields = std::vector<std::pair<std::string, std::string>>;

/** The fields of a pin, by name. */
FFields Describe(const UEdGraphPin& Pin)
{
	const FEdGraphPinType& Type = Pin.PinType;
	const auto Flag = [](const bool bSet)
	{ return std::string(bSet ? "yes" : "no"); };
	return {
		{"category", ToUtf8(Type.PinCategory.ToString())},
		{"sub-category", ToUtf8(Type.PinSubCategory.ToString())},
		{"object", ToUtf8(GetPathNameSafe(Type.PinSubCategoryObject.Get()))},
		{"member", ToUtf8(Type.PinSubCategoryMemberReference.MemberName.ToString())},
		{"container", std::to_string(static_cast<int32>(Type.ContainerType))},
		{"value category", ToUtf8(Type.PinValueType.TerminalCategory.ToString())},
		{"const", Flag(Type.bIsConst)},
		{"reference", Flag(Type.bIsReference)},
		{"hidden", Flag(Pin.bHidden && Pin.SubPins.Num() == 0)},
		{"advanced", Flag(Pin.bAdvancedView)},
		{"ignored", Flag(Pin.bDefaultValueIsIgnored)},
		{"connectable", Flag(!Pin.bNotConnectable)},
		{"friendly name", ToUtf8(Pin.PinFriendlyName.ToString())},
		{"default", ToUtf8(Pin.AutogeneratedDefaultValue)},
	};
}

/** A type that links decided is a wildcard on the fresh node, and has no default yet. */
bool IsDecidedByLinks(const UEdGraphPin& Fresh, const std::string& Field)
{
	static const std::set<std::string> OfType = {
		"category", "sub-category", "object", "member", "container", "value category", "const", "reference", "default"};
	return Fresh.PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard && OfType.contains(Field);
}

const FAcceptedDifference* FindAccepted(const UK2Node& Node, const UEdGraphPin& Pin, const std::string& Field, const bool bIsOldPackage)
{
	const FString Class = Node.GetClass()->GetName().Replace(TEXT("K2Node_"), TEXT(""));
	const FAcceptedDifference* const Found = std::find_if(std::begin(AcceptedDifferences), std::end(AcceptedDifferences),
		[&](const FAcceptedDifference& Row)
		{
			return (!Row.Class || Class == Row.Class) && (!Row.Pin || Pin.PinName == FName(Row.Pin)) &&
				(!Row.bOldPackages || bIsOldPackage) && Field == Row.What;
		});
	return Found != std::end(AcceptedDifferences) ? Found : nullptr;
}

/** Pins that are the node's own: no members of split ones, no orphans. */
bool IsDeclared(const UEdGraphPin& Pin)
{
	return !Pin.ParentPin && !Pin.bOrphanedPin;
}
}

std::vector<std::filesystem::path> SampleNodes::FindTexts()
{
	std::vector<std::filesystem::path> Texts;
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Samples / "t3d", Error))
	{
		if (Entry.path().extension() == ".t3d" && HasBlueprintNode(Entry.path()))
		{
			Texts.push_back(Entry.path());
		}
	}
	std::sort(Texts.begin(), Texts.end());
	return Texts;
}

std::vector<std::filesystem::path> SampleNodes::FindPackages()
{
	std::vector<std::filesystem::path> Packages;
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Samples / "packages", Error))
	{
		if (Entry.path().extension() == ".uasset" || Entry.path().extension() == ".umap")
		{
			Packages.push_back(Entry.path());
		}
	}
	std::sort(Packages.begin(), Packages.end());
	return Packages;
}

TArray<UK2Node*> SampleNodes::ImportText(UEdGraph* Graph, const std::filesystem::path& Path)
{
	FString Text;
	FFileHelper::LoadFileToString(Text, UTF8_TO_TCHAR(Path.c_str()));
	TArray<UK2Node*> Nodes;
	for (UEdGraphNode* const Imported : FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text).Nodes)
	{
		if (UK2Node* const Node = Cast<UK2Node>(Imported))
		{
			Nodes.Add(Node);
		}
	}
	return Nodes;
}

FLoadedSample::FLoadedSample(const std::filesystem::path& Path, const FString& ProjectDir)
{
	const std::filesystem::path Folder = Path.parent_path();
	// A sample of an engine's version refers to others of its folder by their places in a project.
	const std::filesystem::path Target = std::filesystem::path(ToUtf8(ProjectDir)) / "Content" / Folder.filename();
	std::filesystem::copy(Folder, Target, std::filesystem::copy_options::recursive);
	Copied = Target;
	const FString Name = FString::Printf(TEXT("/Game/%s/%s"), UTF8_TO_TCHAR(Folder.filename().c_str()), UTF8_TO_TCHAR(Path.stem().c_str()));
	UPackage* const Package = ::LoadPackage(nullptr, *Name, LOAD_None);
	if (!Package)
	{
		return;
	}
	// Classes of early engines do not hold their members as later ones do: they are made anew, as when an editor opens the Blueprint.
	for (UPackage* const Loaded : FindLoadedPackages())
	{
		if (UBlueprint* const Blueprint = FindObject<UBlueprint>(Loaded, *FPackageName::GetShortName(Loaded)))
		{
			FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::SkipGarbageCollection);
		}
	}
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects, true);
	for (UObject* const Object : Objects)
	{
		UK2Node* const Node = Cast<UK2Node>(Object);
		if (Node && Node->GetGraph())
		{
			Nodes.Add(Node);
		}
	}
}

TArray<UPackage*> FLoadedSample::FindLoadedPackages() const
{
	const FString Folder = FString(TEXT("/Game/")) + UTF8_TO_TCHAR(Copied.filename().c_str()) + TEXT("/");
	TArray<UObject*> Packages;
	GetObjectsOfClass(UPackage::StaticClass(), Packages);
	TArray<UPackage*> Loaded;
	for (UObject* const Package : Packages)
	{
		if (Package->GetName().StartsWith(Folder))
		{
			Loaded.Add(CastChecked<UPackage>(Package));
		}
	}
	return Loaded;
}

FLoadedSample::~FLoadedSample()
{
	// The same names are needed for the next version of the sample.
	for (UPackage* const Package : FindLoadedPackages())
	{
		Package->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Sample")).ToString(), nullptr,
			REN_DontCreateRedirectors | REN_NonTransactional);
	}
	std::error_code Ignored;
	std::filesystem::remove_all(Copied, Ignored);
}

void FNodeComparison::Compare(UK2Node& Sample, const bool bIsOldPackage)
{
	if (Sample.Pins.Num() == 0)
	{
		return;
	}
	FClassResult& Result = Classes[ToUtf8(Sample.GetClass()->GetName())];
	// A timeline without its tracks still has the pins that every timeline has; that of the samples has no track.
	if (!Sample.HasKnownDefinition() && !Sample.IsA<UK2Node_Timeline>())
	{
		const std::string Title = ToUtf8(Sample.GetNodeTitle(ENodeTitleType::ListView).ToString());
		const std::string Identity = DescribeIdentity(Sample);
		const char* const Reason = FindReasonForMissing(Identity);
		++Result.NumUnknown;
		if (Reason)
		{
			Result.Unknown[Reason].insert(Title);
		}
		else
		{
			Differences.push_back(ToUtf8(Sample.GetClass()->GetName()) + " '" + Title + "' is not declared: " + Identity);
		}
		return;
	}
	const UK2Node* const Fresh = MakeFresh(Sample);
	++Result.NumCompared;
	const size_t Before = Differences.size();
	const std::string Title = ToUtf8(
		Sample.GetClass()->GetName() + TEXT(" '") + Sample.GetNodeTitle(ENodeTitleType::ListView).ToString() + TEXT("'"));
	for (const UEdGraphPin* const Pin : Sample.Pins)
	{
		const UEdGraphPin* const Own = IsDeclared(*Pin) ? Fresh->FindPin(Pin->PinName, Pin->Direction) : nullptr;
		if (!Own && IsDeclared(*Pin))
		{
			Differences.push_back(Title + " lacks the pin " + ToUtf8(Pin->PinName.ToString()));
		}
		const FFields Expected = Own ? Describe(*Pin) : FFields();
		const FFields Actual = Own ? Describe(*Own) : FFields();
		for (size_t Index = 0; Index < Expected.size(); ++Index)
		{
			const std::string& Field = Expected[Index].first;
			if (Expected[Index] == Actual[Index] || IsDecidedByLinks(*Own, Field))
			{
				continue;
			}
			if (const FAcceptedDifference* const Accepted = FindAccepted(Sample, *Pin, Field, bIsOldPackage))
			{
				Result.Accepted.insert(Accepted->Reason);
				continue;
			}
			Differences.push_back(Title + " pin " + ToUtf8(Pin->PinName.ToString()) + ": " + Field + " is '" + Actual[Index].second +
				"', the editor's is '" + Expected[Index].second + "'");
		}
	}
	for (const UEdGraphPin* const Pin : Fresh->Pins)
	{
		if (!Sample.FindPin(Pin->PinName, Pin->Direction) && !FindAccepted(Sample, *Pin, "extra", bIsOldPackage))
		{
			Differences.push_back(Title + " has the pin " + ToUtf8(Pin->PinName.ToString()) + ", which the editor's has not");
		}
	}
	Result.NumEqual += Differences.size() == Before ? 1 : 0;
}

int32 FNodeComparison::GetNumCompared() const
{
	int32 Count = 0;
	for (const auto& [Name, Result] : Classes)
	{
		Count += Result.NumCompared;
	}
	return Count;
}

std::string FNodeComparison::MakeTable() const
{
	std::ostringstream Table;
	Table << "class | compared | equal | not declared here\n";
	for (const auto& [Name, Result] : Classes)
	{
		Table << Name << " | " << Result.NumCompared << " | " << Result.NumEqual << " | " << Result.NumUnknown;
		for (const auto& [Reason, Titles] : Result.Unknown)
		{
			std::string List;
			for (const std::string& Title : Titles)
			{
				List += (List.empty() ? "" : ", ") + Title;
			}
			Table << " (" << Reason << ": " << List << ")";
		}
		for (const std::string& Reason : Result.Accepted)
		{
			Table << " (accepted: " << Reason << ")";
		}
		Table << "\n";
	}
	return Table.str();
}
