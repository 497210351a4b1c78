#include "MovieRenderGraphNodeEditing.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphNode.h"
#include "LuaSessionData.h"
#include "MovieRenderGraphNodes.h"
#include "ScopedTransaction.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "VelLuaProperty.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"
#include "VLMRSoftPathText.h"
#include "VLMRVersionGates.h"

#include <cmath>

#define LOCTEXT_NAMESPACE "VelmireMovieRenderGraph"

namespace VLMR
{
	using FWeakGraph = TWeakObjectPtr<UMovieGraphConfig>;
	using FHeldGraph = TStrongObjectPtr<UMovieGraphConfig>;
	using FHeldNode = TStrongObjectPtr<UMovieGraphNode>;

	static const TCHAR* const GraphGone = TEXT("graph no longer valid");

	// The property's full export text: written even when it equals the default.
	static FString ExportPropertyValue(const FProperty& Property, const UObject& Owner)
	{
		FString Text;
		Property.ExportTextItem_InContainer(Text, &Owner, nullptr, const_cast<UObject*>(&Owner), PPF_None);
		return Text;
	}

	static sol::object GetNodeProperty(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& NodeId, const FString& Name)
	{
		const TCHAR* Label = TEXT("graph:get_node_property");
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			LogLine(Session, ELineKind::Fail, Label, GraphGone);
			return Nil(Lua);
		}
		const FHeldNode Node(FindGraphNode(Graph.Get(), NodeId));
		if (!Node)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("node not found"));
			return Nil(Lua);
		}
		const FProperty* Property = VelLuaProperty::FindPropertyByName(Node->GetClass(), Name);
		if (!Property)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("property not found: %s"), *Name));
			return Nil(Lua);
		}
		return sol::make_object(Lua, ToUtf8(ExportPropertyValue(*Property, *Node)));
	}

	// The node and its property, checked in this order; the failure's message when one is missing or refused.
	static bool FindEditableNodeProperty(const UMovieGraphConfig& Graph, const FString& NodeId, const FString& Name, FHeldNode& OutNode,
		FProperty*& OutProperty, FString& OutError)
	{
		OutNode.Reset(FindGraphNode(&Graph, NodeId));
		if (!OutNode)
		{
			OutError = FString::Printf(TEXT("node not found: %s"), *NodeId);
			return false;
		}
		OutProperty = VelLuaProperty::FindPropertyByName(OutNode->GetClass(), Name);
		if (!OutProperty)
		{
			OutError = FString::Printf(TEXT("property not found on %s: %s"), *OutNode->GetClass()->GetName(), *Name);
			return false;
		}
		if (OutProperty->HasAnyPropertyFlags(CPF_Deprecated))
		{
			OutError = FString::Printf(TEXT("property is deprecated: %s"), *Name);
			return false;
		}
		return true;
	}

	// A Lua string is export text; any other value goes through the host's conversion. Nothing is written.
	static bool StageValue(VelLuaProperty::FStagedPropertyValue& Staged, const sol::object& Value, UObject& Node, FString& OutError)
	{
		if (Value.get_type() == sol::type::lua_nil || Value.get_type() == sol::type::none)
		{
			OutError = TEXT("value is nil");
			return false;
		}
		if (Value.get_type() == sol::type::string)
		{
			FString Text;
			if (!ReadTextValue(Value, Text, OutError))
			{
				return false;
			}
			if (ImportsAsSoftPath(*Staged.GetProperty()) && !IsStorableSoftPath(Text))
			{
				OutError = UnstorableSoftPathMessage(Text);
				return false;
			}
			return Staged.ImportText(Text, &Node, OutError);
		}
		return Staged.Apply(Value, OutError);
	}

	static void NotifyPropertyChanged(UObject& Object, FProperty* Property)
	{
		FPropertyChangedEvent Event(Property, EPropertyChangeType::ValueSet);
		Object.PostEditChangeProperty(Event);
	}

	static sol::object SetNodeProperty(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& NodeId,
		const FString& Name, const sol::object& Value)
	{
		const TCHAR* Label = TEXT("graph:set_node_property");
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, GraphGone);
		}
		FHeldNode Node;
		FProperty* Property = nullptr;
		FString Error;
		if (!FindEditableNodeProperty(*Graph, NodeId, Name, Node, Property, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		void* ValueAddress = Property->ContainerPtrToValuePtr<void>(Node.Get());
		VelLuaProperty::FStagedPropertyValue Staged(Property, ValueAddress);
		if (!StageValue(Staged, Value, *Node, Error))
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("cannot set %s: %s"), *Name, *Error));
		}

		FBoolProperty* OverrideFlag = UMovieGraphConfig::FindOverridePropertyForRealProperty(Node->GetClass(), Property);
		const bool bFlagWasOn = !OverrideFlag || OverrideFlag->GetPropertyValue_InContainer(Node.Get());
		const bool bIdentical = Staged.IsIdentical(ValueAddress);
		if (bIdentical && bFlagWasOn)
		{
			LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%s unchanged"), *Property->GetName()));
			return sol::make_object(Lua, true);
		}
		{
			FScopedTransaction Transaction(LOCTEXT("SetNodeProperty", "Velmire: Set Movie Graph Node Property"));
			Graph->Modify();
			Node->Modify();
			Node->PreEditChange(Property);
			if (!bIdentical)
			{
				Staged.Commit(ValueAddress);
			}
			if (!bFlagWasOn)
			{
				OverrideFlag->SetPropertyValue_InContainer(Node.Get(), true);
			}
			NotifyPropertyChanged(*Node, Property);
			if (!bFlagWasOn)
			{
				NotifyPropertyChanged(*Node, OverrideFlag);
			}
			Graph->MarkPackageDirty();
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%s = %s%s"), *Property->GetName(), *ExportPropertyValue(*Property, *Node),
			bFlagWasOn ? TEXT("") : TEXT(" (override on)")));
		return sol::make_object(Lua, true);
	}

	// A variable's description, read before any Lua value is made.
	struct FVariableInfo
	{
		FString Name;
		FString Category;
		FString Description;
		bool bIsGlobal = false;
		bool bIsEditable = false;
		FString Type;
		FString ContainerType;
		TOptional<FString> TypeObject;
		FString Value;
		FString Guid;
	};

	static FVariableInfo ReadVariableInfo(UMovieGraphVariable& Variable)
	{
		FVariableInfo Info;
		Info.Name = Variable.GetMemberName();
		Info.Category = Variable.GetCategory();
		Info.Description = Variable.Description;
		Info.bIsGlobal = Variable.IsGlobal();
		Info.bIsEditable = Variable.IsEditable();
		Info.Type = EnumValueName(Variable.GetValueType());
		Info.ContainerType = EnumValueName(Variable.GetValueContainerType());
		if (const UObject* TypeObject = Variable.GetValueTypeObject())
		{
			Info.TypeObject = TypeObject->GetPathName();
		}
		Info.Value = Variable.GetValueSerializedString();
		Info.Guid = Variable.GetGuid().ToString(EGuidFormats::DigitsWithHyphens);
		return Info;
	}

	static sol::object GetVariable(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Name)
	{
		const TCHAR* Label = TEXT("graph:get_variable");
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			LogLine(Session, ELineKind::Fail, Label, GraphGone);
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMovieGraphVariable> Variable(Graph->GetVariableByName(Name));
		if (!Variable)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("variable not found: %s"), *Name));
			return Nil(Lua);
		}
		const FVariableInfo Info = ReadVariableInfo(*Variable);
		sol::table Table = Lua.create_table(0, 10);
		Table["name"] = ToUtf8(Info.Name);
		Table["category"] = ToUtf8(Info.Category);
		Table["description"] = ToUtf8(Info.Description);
		Table["is_global"] = Info.bIsGlobal;
		Table["is_editable"] = Info.bIsEditable;
		Table["type"] = ToUtf8(Info.Type);
		Table["container_type"] = ToUtf8(Info.ContainerType);
		if (Info.TypeObject.IsSet())
		{
			Table["type_object"] = ToUtf8(Info.TypeObject.GetValue());
		}
		Table["value"] = ToUtf8(Info.Value);
		Table["guid"] = ToUtf8(Info.Guid);
		return Table;
	}

	static bool IsIntegralType(EMovieGraphValueType Type)
	{
		switch (Type)
		{
		case EMovieGraphValueType::Byte:
		case EMovieGraphValueType::Int32:
		case EMovieGraphValueType::Int64:
		case EMovieGraphValueType::UInt32:
		case EMovieGraphValueType::UInt64:
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
		case EMovieGraphValueType::Int8:
		case EMovieGraphValueType::Int16:
		case EMovieGraphValueType::UInt16:
#endif
			return true;
		default:
			return false;
		}
	}

	static bool IsFloatingType(EMovieGraphValueType Type)
	{
		return Type == EMovieGraphValueType::Float || Type == EMovieGraphValueType::Double;
	}

	// A script number as an integral variable's text: within 1e-8 of an integer, truncated toward zero.
	static bool CoerceIntegralNumber(double Number, const FString& TypeName, FString& OutText, FString& OutError)
	{
		const double Nearest = std::floor(Number + 0.5);
		// Written so that NaN and numbers beyond the 64-bit range fail too.
		const bool bInRange = Number > -9223372036854775808.0 && Number < 9223372036854775808.0;
		if (!bInRange || !(std::fabs(Number - Nearest) <= 1e-8))
		{
			OutError = FString::Printf(TEXT("variable type is %s, got a non-integer number"), *TypeName);
			return false;
		}
		OutText = FString::Printf(TEXT("%lld"), static_cast<long long>(static_cast<int64>(Number)));
		return true;
	}

	static bool CoerceNumber(const sol::object& Value, EMovieGraphValueType Type, const FString& TypeName, FString& OutText, FString& OutError)
	{
		lua_State* L = Value.lua_state();
		Value.push(L);
		const bool bInteger = lua_isinteger(L, -1) != 0;
		const lua_Integer Integer = bInteger ? lua_tointeger(L, -1) : 0;
		const double Number = lua_tonumber(L, -1);
		lua_pop(L, 1);
		if (IsIntegralType(Type))
		{
			if (bInteger)
			{
				OutText = FString::Printf(TEXT("%lld"), static_cast<long long>(Integer));
				return true;
			}
			return CoerceIntegralNumber(Number, TypeName, OutText, OutError);
		}
		if (IsFloatingType(Type))
		{
			OutText = FString::SanitizeFloat(Number);
			return true;
		}
		OutError = FString::Printf(TEXT("variable type is %s, got a number"), *TypeName);
		return false;
	}

	static bool CoerceString(const FString& Text, EMovieGraphValueType Type, const FString& TypeName, FString& OutText, FString& OutError)
	{
		if (Type == EMovieGraphValueType::Bool)
		{
			const bool bTrue = Text.Equals(TEXT("true"), ESearchCase::IgnoreCase);
			if (!bTrue && !Text.Equals(TEXT("false"), ESearchCase::IgnoreCase))
			{
				OutError = TEXT("variable type is Bool, string must be \"true\" or \"false\"");
				return false;
			}
			OutText = bTrue ? TEXT("True") : TEXT("False");
			return true;
		}
		if ((IsIntegralType(Type) || IsFloatingType(Type)) && !Text.IsNumeric())
		{
			OutError = FString::Printf(TEXT("variable type is %s, string '%s' is not numeric"), *TypeName, *Text);
			return false;
		}
		if ((Type == EMovieGraphValueType::SoftObject || Type == EMovieGraphValueType::SoftClass) && !IsStorableSoftPath(Text))
		{
			OutError = UnstorableSoftPathMessage(Text);
			return false;
		}
		OutText = Text;
		return true;
	}

	// The script's value as the serialised text of a variable of this type.
	static bool CoerceVariableValue(const sol::object& Value, EMovieGraphValueType Type, FString& OutText, FString& OutError)
	{
		const FString TypeName = EnumValueName(Type);
		switch (Value.get_type())
		{
		case sol::type::boolean:
			if (Type != EMovieGraphValueType::Bool)
			{
				OutError = FString::Printf(TEXT("variable type is %s, got a boolean"), *TypeName);
				return false;
			}
			OutText = Value.as<bool>() ? TEXT("True") : TEXT("False");
			return true;
		case sol::type::number:
			return CoerceNumber(Value, Type, TypeName, OutText, OutError);
		case sol::type::string:
		{
			FString Text;
			return ReadTextValue(Value, Text, OutError) && CoerceString(Text, Type, TypeName, OutText, OutError);
		}
		default:
			OutError = FString::Printf(TEXT("unsupported Lua value type for a %s variable (use string, number or boolean)"), *TypeName);
			return false;
		}
	}

	// Globals, read-only and container variables, in this order; the refusal's message.
	static bool CheckVariableWritable(const UMovieGraphVariable& Variable, const FString& Name, FString& OutError)
	{
		if (Variable.IsGlobal())
		{
			OutError = FString::Printf(TEXT("'%s' is a global variable; its value is provided by the graph at render time"), *Name);
			return false;
		}
		if (!Variable.IsEditable())
		{
			OutError = FString::Printf(TEXT("'%s' is not editable"), *Name);
			return false;
		}
		if (Variable.GetValueContainerType() != EMovieGraphContainerType::None)
		{
			OutError = FString::Printf(TEXT("'%s' is a container variable (%s); only scalar values are supported"), *Name,
				*EnumValueName(Variable.GetValueContainerType()));
			return false;
		}
		return true;
	}

	static sol::object SetVariable(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Name, const sol::object& Value)
	{
		const TCHAR* Label = TEXT("graph:set_variable");
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, GraphGone);
		}
		const TStrongObjectPtr<UMovieGraphVariable> Variable(Graph->GetVariableByName(Name));
		if (!Variable)
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("variable not found: %s"), *Name));
		}
		FString Error;
		FString Coerced;
		if (!CheckVariableWritable(*Variable, Name, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		if (!CoerceVariableValue(Value, Variable->GetValueType(), Coerced, Error))
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("cannot set '%s': %s"), *Name, *Error));
		}
		const FString Previous = Variable->GetValueSerializedString();
		if (Coerced.Equals(Previous, ESearchCase::IgnoreCase))
		{
			LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%s unchanged"), *Name));
			return sol::make_object(Lua, true);
		}
		{
			FScopedTransaction Transaction(LOCTEXT("SetVariable", "Velmire: Set Movie Graph Variable"));
			Variable->Modify();
			if (!Variable->SetValueSerializedString(Coerced))
			{
				Variable->SetValueSerializedString(Previous);
				Transaction.Cancel();
				return Fail(Lua, Session, Label, FString::Printf(TEXT("engine rejected value '%s' for %s variable '%s'"), *Coerced,
					*EnumValueName(Variable->GetValueType()), *Name));
			}
			Variable->PostEditChange();
			Graph->MarkPackageDirty();
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%s = %s"), *Name, *Variable->GetValueSerializedString()));
		return sol::make_object(Lua, true);
	}

	static bool IsInterfaceNodeId(const FString& NodeId)
	{
		return NodeId.Equals(TEXT("input"), ESearchCase::IgnoreCase) || NodeId.Equals(TEXT("output"), ESearchCase::IgnoreCase);
	}

	static sol::object RemoveNode(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& NodeId)
	{
		const TCHAR* Label = TEXT("graph:remove_node");
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, GraphGone);
		}
		if (IsInterfaceNodeId(NodeId))
		{
			return Fail(Lua, Session, Label, TEXT("the Input and Output nodes cannot be removed"));
		}
		const FHeldNode Node(FindGraphNode(Graph.Get(), NodeId));
		if (!Node)
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("node not found: %s"), *NodeId));
		}
		{
			FScopedTransaction Transaction(LOCTEXT("RemoveNode", "Velmire: Remove Movie Graph Node"));
			Graph->Modify();
			Node->Modify();
			if (!Graph->RemoveNode(Node.Get()))
			{
				Transaction.Cancel();
				return Fail(Lua, Session, Label, TEXT("UMovieGraphConfig::RemoveNode returned false"));
			}
			Graph->MarkPackageDirty();
		}
		LogLine(Session, ELineKind::Ok, Label, NodeId);
		return sol::make_object(Lua, true);
	}

	enum class EInsertSide : uint8
	{
		Before,
		After
	};

	// Both insertions share one path: refused before any argument on engines without them.
	static sol::object InsertNode(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, EInsertSide Side,
		const FString& NodeId, const FString& ClassName, const FString& PinText)
	{
		const bool bBefore = Side == EInsertSide::Before;
		const TCHAR* Label = bBefore ? TEXT("graph:insert_before") : TEXT("graph:insert_after");
#if UE_VERSION_OLDER_THAN(5, 8, 0)
		return RefuseGatedFeature(Lua, Session, Label, bBefore ? EGatedFeature::InsertBefore : EGatedFeature::InsertAfter);
#else
		const FHeldGraph Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, GraphGone);
		}
		const FHeldNode Target(FindGraphNode(Graph.Get(), NodeId));
		if (!Target)
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("node not found: %s"), *NodeId));
		}
		const TStrongObjectPtr<UClass> NodeClass(ResolveNodeClass(ClassName));
		if (!NodeClass)
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("class not found: %s"), *ClassName));
		}
		if (!FitsEngineName(PinText))
		{
			return Fail(Lua, Session, Label, DescribeEngineNameTooLong(PinText));
		}
		const FName PinLabel = ResolvePinLabel(Target.Get(), PinText, bBefore ? EPinSide::Input : EPinSide::Output).Label;
		const FHeldNode Inserted(bBefore ? Graph->InsertBefore(Target.Get(), NodeClass.Get(), PinLabel) : Graph->InsertAfter(Target.Get(), NodeClass.Get(), PinLabel));
		if (!Inserted)
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("%s returned nullptr"), bBefore ? TEXT("UMovieGraphConfig::InsertBefore") : TEXT("UMovieGraphConfig::InsertAfter")));
		}
		Graph->MarkPackageDirty();
		return MakeNodeInfoTable(Lua, ReadNodeInfo(*Inserted));
#endif
	}

	void AddNodeEditingMethods(sol::table& Handle, const FWeakGraph& Graph, FLuaSessionData* S)
	{
		Handle.set_function("get_node_property", [Graph, S](sol::this_state L, sol::object, const FScriptText& NodeId, const FScriptText& Name) {
			return GetNodeProperty(L, Graph, *S, NodeId.Value, Name.Value);
		});
		Handle.set_function("set_node_property", [Graph, S](sol::this_state L, sol::object, const FScriptText& NodeId, const FScriptText& Name, sol::object Value) {
			return SetNodeProperty(L, Graph, *S, NodeId.Value, Name.Value, Value);
		});
		Handle.set_function("get_variable", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name) { return GetVariable(L, Graph, *S, Name.Value); });
		Handle.set_function("set_variable", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name, sol::object Value) {
			return SetVariable(L, Graph, *S, Name.Value, Value);
		});
		Handle.set_function("remove_node", [Graph, S](sol::this_state L, sol::object, const FScriptText& NodeId) { return RemoveNode(L, Graph, *S, NodeId.Value); });
		for (const EInsertSide Side : { EInsertSide::Before, EInsertSide::After })
		{
			const char* MethodName = Side == EInsertSide::Before ? "insert_before" : "insert_after";
#if UE_VERSION_OLDER_THAN(5, 8, 0)
			// Arguments are not even converted: an engine without insertions refuses before looking at any.
			Handle.set_function(MethodName, [Graph, S, Side](sol::this_state L, sol::variadic_args) {
				return InsertNode(L, Graph, *S, Side, FString(), FString(), FString());
			});
#else
			Handle.set_function(MethodName, [Graph, S, Side](sol::this_state L, sol::object, const FScriptText& NodeId, const FScriptText& ClassName,
				const TOptionalArgument<FScriptText>& Pin) {
				return InsertNode(L, Graph, *S, Side, NodeId.Value, ClassName.Value, Pin.Value.IsSet() ? Pin.Value->Value : FString());
			});
#endif
		}
	}
}

#undef LOCTEXT_NAMESPACE
