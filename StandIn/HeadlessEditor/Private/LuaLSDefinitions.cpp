#include "BindingDocs.h"

#include "HandleTypes.h"
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
		};

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
			OutLines.Add(FString::Printf(TEXT("---@return %s # %s"), *ToLuaLSReturnType(Function.Doc->Returns), *Function.Doc->Returns));
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

		void AppendHandleClass(const FHandleType& Handle, const TArray<FDocumentedFunction>& Functions, TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			OutLines.Add(TEXT("---@class ") + ToLuaLSClassName(Handle.Kind));
			for (const TCHAR* Field : Handle.StringFields)
			{
				OutLines.Add(FString::Printf(TEXT("---@field %s string"), Field));
			}
			OutLines.Add(FString::Printf(TEXT("local %s = {}"), Handle.Kind));
			for (const TCHAR* Method : Handle.Methods)
			{
				const FString Declarator = FString::Printf(TEXT("%s:%s"), Handle.Kind, Method);
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
	}

	// Stand-in choice: parameter types are `any`, as the records name parameters but not their types.
	TArray<FString> MakeLuaLSDefinitions(const TArray<FVelmireLuaBinding>& Bindings)
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
		for (const FHandleType& Handle : GetHandleTypes())
		{
			AppendHandleClass(Handle, Functions, Lines);
		}
		return Lines;
	}
}
