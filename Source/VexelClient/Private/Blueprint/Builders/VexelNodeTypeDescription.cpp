#include "Blueprint/Builders/VexelNodeTypeDescription.h"

namespace
{
const TCHAR* const NoDescription = TEXT("No description available.");
const TCHAR* const InternalUseTooltip = TEXT("DO NOT CALL MANUALLY - BLUEPRINT INTERNAL USE ONLY");

/** A sentence about the ids that begin with Prefix. An id that ends in a point covers what stands behind it, which fills "%s". */
struct FSentence
{
	const TCHAR* Prefix;
	const TCHAR* Sentence;
};

/** Of several prefixes that fit an id, the longest counts. */
constexpr FSentence Sentences[] = {
	{TEXT("call.op.Add"), TEXT("It performs addition operation on numbers, integers, floats, vectors. This is the preferred way of adding numbers and vectors.")},
	{TEXT("call.op.Subtract"), TEXT("It performs subtraction operation on numbers, integers, floats, vectors. This is the preferred way of subtracting numbers and vectors.")},
	{TEXT("call.op.Multiply"), TEXT("It performs multiplication operation on numbers, integers, floats, vectors. This is the preferred way of multiplying numbers and vectors.")},
	{TEXT("call.op.Divide"), TEXT("It performs division operation on numbers, integers, floats, vectors. This is the preferred way of dividing numbers and vectors.")},
	{TEXT("call.op.EqualEqual"), TEXT("It checks whether two values are equal. This is the preferred way of comparing values for equality.")},
	{TEXT("call.op.NotEqual"), TEXT("It checks whether two values are not equal. This is the preferred way of comparing values for inequality.")},
	{TEXT("call.op.Greater"), TEXT("It checks whether the first value is greater than the second one.")},
	{TEXT("call.op.GreaterEqual"), TEXT("It checks whether the first value is greater than or equal to the second one.")},
	{TEXT("call.op.Less"), TEXT("It checks whether the first value is less than the second one.")},
	{TEXT("call.op.LessEqual"), TEXT("It checks whether the first value is less than or equal to the second one.")},
	{TEXT("call."), TEXT("It calls %s.")},
	{TEXT("call.super"), TEXT("It calls the parent class's version of the function.")},
	{TEXT("call.GetInputAxisKeyValue."), TEXT("It gets the current value of the input axis %s.")},
	{TEXT("call.interface."), TEXT("It calls the interface function %s on an object that implements the interface.")},
	{TEXT("call.add_component."), TEXT("It adds a component of type %s to the actor.")},
	{TEXT("call.add_component_by_class"), TEXT("It adds a component of a given class to an actor.")},
	{TEXT("call.add_component_by_class."), TEXT("It adds a component of class %s to an actor.")},
	{TEXT("call.create_widget"), TEXT("It creates a widget of a given type.")},
	{TEXT("call.create_widget."), TEXT("It creates a widget of type %s.")},
	{TEXT("call.create_drag_drop"), TEXT("It creates a drag and drop operation.")},
	{TEXT("call.create_drag_drop."), TEXT("It creates a drag and drop operation of type %s.")},
	{TEXT("call.create_object"), TEXT("It creates an object of a given class.")},
	{TEXT("call.create_object."), TEXT("It creates an object of type %s.")},
	{TEXT("call.spawn_actor"), TEXT("It spawns an actor of a given type in the world.")},
	{TEXT("call.spawn_actor."), TEXT("It spawns an actor of type %s in the world.")},
	{TEXT("call.get_class_defaults"), TEXT("It gets the default values of the properties of a class.")},
	{TEXT("call.get_class_defaults."), TEXT("It gets the default values of the properties of class %s.")},
	{TEXT("call.get_data_table_row"), TEXT("It gets a row of a data table by its name.")},
	{TEXT("call.get_data_table_row."), TEXT("It gets a row of the data table %s by its name.")},
	{TEXT("call.load_asset"), TEXT("It loads an asset asynchronously.")},
	{TEXT("call.load_asset."), TEXT("It loads the asset %s asynchronously.")},
	{TEXT("call.load_asset_class"), TEXT("It loads the class of an asset asynchronously.")},
	{TEXT("call.load_asset_class."), TEXT("It loads the asset class %s asynchronously.")},
	{TEXT("call.get_subsystem."), TEXT("It gets the subsystem %s.")},
	{TEXT("call.get_subsystem.pc."), TEXT("It gets the local player subsystem %s of a player controller.")},
	{TEXT("call.copy"), TEXT("It makes a copy of a value.")},
	{TEXT("event."), TEXT("It is an event of type %s.")},
	{TEXT("event.custom"), TEXT("It is a custom event that can be called by its name.")},
	{TEXT("struct."), TEXT("It works on a struct: %s.")},
	{TEXT("struct.break."), TEXT("It breaks a struct of type %s into its components.")},
	{TEXT("struct.make."), TEXT("It makes a struct of type %s from its components.")},
	{TEXT("struct.set_members."), TEXT("It sets members of a struct of type %s.")},
	{TEXT("var."), TEXT("It works on a variable: %s.")},
	{TEXT("var.get."), TEXT("It gets the member variable %s.")},
	{TEXT("var.set."), TEXT("It sets the member variable %s.")},
	{TEXT("var.local.get."), TEXT("It gets the graph/function local variable %s.")},
	{TEXT("var.local.set."), TEXT("It sets the graph/function local variable %s.")},
	{TEXT("var.set_ref"), TEXT("It sets the value of a variable that is passed by reference.")},
	{TEXT("var.set_ref."), TEXT("It sets the value of the variable %s that is passed by reference.")},
	{TEXT("var.make_temp."), TEXT("It makes a temporary variable of type %s.")},
	{TEXT("var.make_temp_persistent."), TEXT("It makes a persistent temporary variable of type %s.")},
	{TEXT("var.self"), TEXT("It gets a reference to this instance of the blueprint.")},
	{TEXT("var.assign"), TEXT("It assigns a value to a temporary variable.")},
	{TEXT("var.property_access"), TEXT("It reads a property by its access path.")},
	{TEXT("cast."), TEXT("It casts an object to class %s")},
	{TEXT("cast.class."), TEXT("It casts a class to class %s")},
	{TEXT("cast.byte_to_enum."), TEXT("It casts a byte to the enum %s.")},
	{TEXT("delegate."), TEXT("It works on an event dispatcher: %s.")},
	{TEXT("delegate.assign."), TEXT("It binds a new custom event to the event dispatcher %s.")},
	{TEXT("delegate.add."), TEXT("It binds an event to the event dispatcher %s.")},
	{TEXT("delegate.remove."), TEXT("It unbinds an event from the event dispatcher %s.")},
	{TEXT("delegate.call."), TEXT("It calls the event dispatcher %s.")},
	{TEXT("delegate.clear."), TEXT("It unbinds all events from the event dispatcher %s.")},
	{TEXT("delegate.create."), TEXT("It creates an event delegate from the function %s.")},
	{TEXT("async."), TEXT("It starts the asynchronous task %s.")},
	{TEXT("macro."), TEXT("It is a macro instance of %s.")},
	{TEXT("enum."), TEXT("It works on an enum: %s.")},
	{TEXT("enum.literal."), TEXT("It is a literal value of the enum %s.")},
	{TEXT("enum.foreach."), TEXT("It executes once for each value of the enum %s.")},
	{TEXT("enum.get_num."), TEXT("It gets the number of values of the enum %s.")},
	{TEXT("enum.switch."), TEXT("It switches on enum values from %s.")},
	{TEXT("enum.equal"), TEXT("It checks whether two enum values are equal.")},
	{TEXT("enum.equal."), TEXT("It checks whether two values of the enum %s are equal.")},
	{TEXT("enum.not_equal"), TEXT("It checks whether two enum values are not equal.")},
	{TEXT("enum.not_equal."), TEXT("It checks whether two values of the enum %s are not equal.")},
	{TEXT("enum.get_name"), TEXT("It gets the name of an enum value.")},
	{TEXT("enum.get_name."), TEXT("It gets the name of a value of the enum %s.")},
	{TEXT("enum.get_name_string"), TEXT("It gets the name of an enum value as a string.")},
	{TEXT("enum.get_name_string."), TEXT("It gets the name of a value of the enum %s as a string.")},
	{TEXT("literal."), TEXT("It is a literal reference to %s.")},
	{TEXT("literal.value"), TEXT("It is a literal value.")},
	{TEXT("literal.bitmask"), TEXT("It is a literal bitmask.")},
	{TEXT("literal.bitmask."), TEXT("It is a literal bitmask of the enum %s.")},
	{TEXT("input."), TEXT("It is an input node: %s.")},
	{TEXT("input.key."), TEXT("It is an event for the input key %s.")},
	{TEXT("input.axis."), TEXT("It is an event for the input axis %s.")},
	{TEXT("input.touch"), TEXT("It is an event for touch input.")},
	{TEXT("input.debug_key."), TEXT("It is an event for the debug key %s.")},
	{TEXT("input.enhanced"), TEXT("It is an event for an enhanced input action.")},
	{TEXT("input.enhanced."), TEXT("It is an event for the enhanced input action %s.")},
	{TEXT("input.get_action_value"), TEXT("It gets the current value of an input action.")},
	{TEXT("input.get_action_value."), TEXT("It gets the current value of the input action %s.")},
	{TEXT("graph."), TEXT("It is a graph node: %s.")},
	{TEXT("graph.knot"), TEXT("It is a knot in the graph, also known as the reroute node. It only helps with organizing the graph and has no functionality.")},
	{TEXT("graph.comment"), TEXT("It is a comment in the graph and has no functionality.")},
	{TEXT("graph.docs"), TEXT("It shows documentation in the graph and has no functionality.")},
	{TEXT("graph.entry"), TEXT("It is an entry point of a function.")},
	{TEXT("graph.entry."), TEXT("It is an entry point of the function %s.")},
	{TEXT("graph.return"), TEXT("It is a return node of a function, used to return values from the function.")},
	{TEXT("graph.return."), TEXT("It is a return node of the function %s, used to return values from the function.")},
	{TEXT("flow."), TEXT("It controls the flow of execution: %s.")},
	{TEXT("flow.if"), TEXT("It is a branch node that executes different paths based on a boolean condition.")},
	{TEXT("flow.select"), TEXT("It selects one of several values by an index.")},
	{TEXT("flow.sequence"), TEXT("It executes several paths one after another.")},
	{TEXT("flow.multigate"), TEXT("It executes one of several paths each time, in order or at random.")},
	{TEXT("flow.do_once_multi"), TEXT("It executes each of its paths only once until it is reset.")},
	{TEXT("make."), TEXT("It makes a container: %s.")},
	{TEXT("make.array"), TEXT("It makes an array from its elements.")},
	{TEXT("make.map"), TEXT("It makes a map from its keys and values.")},
	{TEXT("make.set"), TEXT("It makes a set from its elements.")},
	{TEXT("array."), TEXT("It works on an array: %s.")},
	{TEXT("array.get"), TEXT("It gets a copy of an element of an array.")},
	{TEXT("array.get_ref"), TEXT("It gets a reference to an element of an array.")},
	{TEXT("foreach."), TEXT("It executes once for each element of a %s.")},
	{TEXT("switch."), TEXT("It switches on the value of the type %s.")},
	{TEXT("switch.integer"), TEXT("It executes a path that is chosen by an integer.")},
	{TEXT("switch.name"), TEXT("It executes a path that is chosen by a name.")},
	{TEXT("switch.string"), TEXT("It executes a path that is chosen by a string.")},
	{TEXT("text."), TEXT("It makes a text: %s.")},
	{TEXT("text.format"), TEXT("It makes a text from a format and its arguments.")},
	{TEXT("text.to_text"), TEXT("It turns a value into a text.")},
	{TEXT("math."), TEXT("It does math: %s.")},
	{TEXT("math.ease"), TEXT("It eases between two values by an alpha.")},
	{TEXT("math.expression"), TEXT("It evaluates a math expression.")},
	{TEXT("timeline"), TEXT("It is a timeline node for time-based animations.")},
	{TEXT("timeline."), TEXT("It is a timeline node named %s for time-based animations.")},
	{TEXT("convert."), TEXT("It converts a value: %s.")},
	{TEXT("convert.asset"), TEXT("It converts an asset to a class.")},
	{TEXT("convert.asset."), TEXT("It converts an asset to class %s.")},
	{TEXT("gameplay_tags."), TEXT("It works on gameplay tags: %s.")},
	{TEXT("gameplay_tags.multi_compare_asset_interface"), TEXT("It compares the gameplay tags of an object with several tag containers.")},
	{TEXT("gameplay_tags.multi_compare_asset_interface_single"), TEXT("It compares the gameplay tags of an object with several tags.")},
	{TEXT("gameplay_tags.multi_compare_container"), TEXT("It compares a gameplay tag container with several others.")},
	{TEXT("gameplay_tags.multi_compare_container_single"), TEXT("It compares a gameplay tag container with several tags.")},
	{TEXT("gameplay_tags.switch_tag"), TEXT("It executes a path that is chosen by a gameplay tag.")},
	{TEXT("gameplay_tags.switch_container"), TEXT("It executes a path that is chosen by a gameplay tag container.")},
	{TEXT("state_tree."), TEXT("It works on a state tree: %s.")},
	{TEXT("state_tree.property_ref"), TEXT("It gets the value that a state tree property reference points to.")},
	{TEXT("state_tree.get_property_description"), TEXT("It gets the description of a property of a state tree node.")},
	{TEXT("state_tree.make_reference"), TEXT("It makes a reference to a state tree with its parameters.")},
	{TEXT("livelink."), TEXT("It works on Live Link data: %s.")},
	{TEXT("livelink.evaluate_frame_with_role"), TEXT("It gets the frame of a Live Link subject for a role.")},
	{TEXT("livelink.evaluate_frame_at_world_time"), TEXT("It gets the frame of a Live Link subject at a world time.")},
	{TEXT("livelink.evaluate_frame_at_scene_time"), TEXT("It gets the frame of a Live Link subject at a scene time.")},
	{TEXT("livelink.update_virtual_subject_static_data"), TEXT("It sets the static data of a virtual Live Link subject.")},
	{TEXT("livelink.update_virtual_subject_frame_data"), TEXT("It sets the frame data of a virtual Live Link subject.")},
	{TEXT("sequencer."), TEXT("It works on a level sequence: %s.")},
	{TEXT("sequencer.get_binding"), TEXT("It gets a binding of a level sequence.")},
	{TEXT("camera_rig."), TEXT("It works on a camera rig: %s.")},
	{TEXT("camera_rig.set_parameters"), TEXT("It sets the parameters of a camera rig.")},
};

/** Whether the sentence is about the id: a prefix that ends in a point has something behind it, any other one is the whole id. */
bool Covers(const FSentence& Sentence, const FString& Id)
{
	const FStringView Prefix(Sentence.Prefix);
	return Prefix.EndsWith(TEXT('.')) ? Id.Len() > Prefix.Len() && Id.StartsWith(Prefix) : Id == Sentence.Prefix;
}

const FSentence* FindSentence(const FString& Id)
{
	const FSentence* Best = nullptr;
	for (const FSentence& Sentence : Sentences)
	{
		if (Covers(Sentence, Id) && (!Best || FStringView(Sentence.Prefix).Len() > FStringView(Best->Prefix).Len()))
		{
			Best = &Sentence;
		}
	}
	return Best;
}
}

FString FVexelNodeTypeDescription::MakeSentence(const TVexelNodeTypeId& Id, const FString& Name)
{
	const FSentence* const Sentence = FindSentence(Id.ToString());
	if (!Sentence)
	{
		return FString::Printf(TEXT("This is a blueprint node called %s."), *Name);
	}
	return FString(Sentence->Sentence).Replace(TEXT("%s"), *Id.ToString().RightChop(FStringView(Sentence->Prefix).Len()));
}

FString FVexelNodeTypeDescription::Make(const TVexelNodeTypeId& Id, const FString& Name, const FString& Keywords, const FString& Tooltip)
{
	FString Description = MakeSentence(Id, Name) + TEXT(" ");
	Description += Tooltip.IsEmpty() ? FString(NoDescription) : Tooltip.Contains(InternalUseTooltip) ? FString()
																									 : Tooltip;
	Description.TrimEndInline();
	if (!Keywords.IsEmpty())
	{
		Description += FString::Printf(TEXT(" Keywords are %s."), *Keywords);
	}
	return Description;
}
