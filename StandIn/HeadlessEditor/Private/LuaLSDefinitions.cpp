#include "BindingDocs.h"

#include "HandleDiscovery.h"
#include "LuaReturnTypes.h"
#include "LuaSignature.h"
#include "VelmireExtensionRegistrar.h"

namespace UE::Vlmr
{
	namespace
	{
		struct FDocumentedFunction
		{
			FLuaSignature Signature;
			const FLuaFunctionDoc* Doc = nullptr;
			FLuaLSReturn Return;
		};

		// "mrg_support" for a global, "graph_evaluate" for the method graph:evaluate.
		FString MakeResultName(const FLuaSignature& Signature)
		{
			return Signature.IsMethod() ? Signature.Owner + TEXT("_") + Signature.Name : Signature.Name;
		}

		// Records that name one call; records listing several ("graph:evaluate / output_settings / ...") only point to
		// the records of the other binding and are left out.
		TArray<FDocumentedFunction> CollectDocumentedFunctions(const TArray<FVelmireLuaBinding>& Bindings)
		{
			TArray<FDocumentedFunction> Functions;
			for (const FVelmireLuaBinding& Binding : Bindings)
			{
				for (const FLuaFunctionDoc& Doc : Binding.Docs)
				{
					FDocumentedFunction Function;
					if (ParseLuaSignature(Doc.Signature, Function.Signature))
					{
						Function.Doc = &Doc;
						Function.Return = ToLuaLSReturn(Doc.Returns, MakeResultName(Function.Signature));
						Functions.Add(MoveTemp(Function));
					}
				}
			}
			return Functions;
		}

		const FDocumentedFunction* FindFunction(const TArray<FDocumentedFunction>& Functions, const FString& Owner, const FString& Name)
		{
			return Functions.FindByPredicate([&Owner, &Name](const FDocumentedFunction& Function)
			{
				return Function.Signature.Owner.Equals(Owner, ESearchCase::CaseSensitive)
					&& Function.Signature.Name.Equals(Name, ESearchCase::CaseSensitive);
			});
		}

		FString JoinParameterNames(const FLuaSignature& Signature)
		{
			TArray<FString> Names;
			for (const FLuaParameter& Parameter : Signature.Parameters)
			{
				Names.Add(Parameter.Name);
			}
			return FString::Join(Names, TEXT(", "));
		}

		void AppendFunction(const FString& Declarator, const FDocumentedFunction& Function, TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			if (!Function.Doc->Description.IsEmpty())
			{
				OutLines.Add(TEXT("---") + Function.Doc->Description);
			}
			for (const FLuaParameter& Parameter : Function.Signature.Parameters)
			{
				OutLines.Add(FString::Printf(TEXT("---@param %s%s any"), *Parameter.Name,
					Parameter.bOptional && Parameter.Name != TEXT("...") ? TEXT("?") : TEXT("")));
			}
			OutLines.Add(FString::Printf(TEXT("---@return %s # %s"), *Function.Return.Type, *Function.Doc->Returns));
			OutLines.Add(FString::Printf(TEXT("function %s(%s) end"), *Declarator, *JoinParameterNames(Function.Signature)));
		}

		void AppendUndocumentedMethod(const FString& Declarator, TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			OutLines.Add(TEXT("---@param ... any"));
			OutLines.Add(TEXT("---@return any"));
			OutLines.Add(FString::Printf(TEXT("function %s(...) end"), *Declarator));
		}

		void AppendHelp(TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			OutLines.Add(TEXT("---Lists the Lua bindings, or the functions of one binding, in the session log"));
			OutLines.Add(TEXT("---@param binding? string"));
			OutLines.Add(TEXT("function help(binding) end"));
		}

		FHandleType& FindOrAddHandleType(TArray<FHandleType>& Types, const FString& Kind)
		{
			if (FHandleType* Existing = Types.FindByPredicate([&Kind](const FHandleType& Type) { return Type.Kind == Kind; }))
			{
				return *Existing;
			}
			FHandleType& Added = Types.AddDefaulted_GetRef();
			Added.Kind = Kind;
			return Added;
		}

		// The handles and named results found on real tables, with the methods the records document for them and every
		// handle kind and named result a record returns, so that what the records promise is declared even where no table
		// could be built.
		TArray<FHandleType> CollectHandleClasses(const TArray<FHandleType>& DiscoveredHandles, const TArray<FDocumentedFunction>& Functions)
		{
			TArray<FHandleType> Classes = DiscoveredHandles;
			for (const FDocumentedFunction& Function : Functions)
			{
				if (Function.Signature.IsMethod())
				{
					FHandleType& Class = FindOrAddHandleType(Classes, Function.Signature.Owner);
					Class.Methods.AddUnique(Function.Signature.Name);
					Class.Methods.Sort();
				}
				for (const FString& Kind : Function.Return.NamedKinds)
				{
					FindOrAddHandleType(Classes, Kind);
				}
			}
			return Classes;
		}

		FString FormatFieldLine(const FString& Access, const FString& Name, bool bOptional, const FString& Type)
		{
			return FString::Printf(TEXT("---@field %s%s%s %s"), *Access, *Name, bOptional ? TEXT("?") : TEXT(""), *Type);
		}

		void AppendHandleClass(const FHandleType& Handle, const TArray<FDocumentedFunction>& Functions, TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			OutLines.Add(TEXT("---@class ") + ToLuaLSClassName(Handle.Kind));
			for (const FHandleField& Field : Handle.Fields)
			{
				// Fields named "__..." are the bindings' own bookkeeping, not for scripts.
				const FString Access = Field.Name.StartsWith(TEXT("__")) ? TEXT("private ") : TEXT("");
				OutLines.Add(FormatFieldLine(Access, Field.Name, false, Field.LuaType));
			}
			if (Handle.Methods.IsEmpty())
			{
				return;
			}
			OutLines.Add(FString::Printf(TEXT("local %s = {}"), *Handle.Kind));
			for (const FString& Method : Handle.Methods)
			{
				const FString Declarator = FString::Printf(TEXT("%s:%s"), *Handle.Kind, *Method);
				if (const FDocumentedFunction* Function = FindFunction(Functions, Handle.Kind, Method))
				{
					AppendFunction(Declarator, *Function, OutLines);
				}
				else
				{
					AppendUndocumentedMethod(Declarator, OutLines);
				}
			}
		}

		// The classes of the result tables, in the order of the records that describe them.
		void AppendResultClasses(const TArray<FDocumentedFunction>& Functions, TArray<FString>& OutLines)
		{
			for (const FDocumentedFunction& Function : Functions)
			{
				for (const FLuaLSClass& Class : Function.Return.Classes)
				{
					OutLines.Add(FString());
					OutLines.Add(TEXT("---@class ") + Class.Name);
					for (const FLuaLSField& Field : Class.Fields)
					{
						OutLines.Add(FormatFieldLine(FString(), Field.Name, Field.bOptional, Field.Type));
					}
				}
			}
		}
	}

	// Stand-in choice: parameter types are `any`, as the records name parameters but not their types.
	TArray<FString> MakeLuaLSDefinitions(const TArray<FVelmireLuaBinding>& Bindings, const TArray<FHandleType>& DiscoveredHandles)
	{
		const TArray<FDocumentedFunction> Functions = CollectDocumentedFunctions(Bindings);
		TArray<FString> Lines;
		Lines.Add(TEXT("---@meta"));
		AppendHelp(Lines);
		for (const FDocumentedFunction& Function : Functions)
		{
			if (!Function.Signature.IsMethod())
			{
				AppendFunction(Function.Signature.Name, Function, Lines);
			}
		}
		for (const FHandleType& Handle : CollectHandleClasses(DiscoveredHandles, Functions))
		{
			AppendHandleClass(Handle, Functions, Lines);
		}
		AppendResultClasses(Functions, Lines);
		return Lines;
	}
}
