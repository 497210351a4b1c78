#include "BindingDocs.h"

#include "VelmireExtensionRegistrar.h"

namespace UE::Vlmr
{
	namespace
	{
		FString EscapeTableCell(const FString& Text)
		{
			return Text.Replace(TEXT("|"), TEXT("\\|"), ESearchCase::CaseSensitive);
		}

		void AppendBinding(const FVelmireLuaBinding& Binding, TArray<FString>& OutLines)
		{
			OutLines.Add(FString());
			OutLines.Add(TEXT("## ") + Binding.BindingName);
			OutLines.Add(FString());
			OutLines.Add(FString::Printf(TEXT("Extension `%s`, %d %s."), *Binding.ExtensionId, Binding.Docs.Num(),
				Binding.Docs.Num() == 1 ? TEXT("function") : TEXT("functions")));
			OutLines.Add(FString());
			OutLines.Add(TEXT("| Function | Description | Returns |"));
			OutLines.Add(TEXT("| --- | --- | --- |"));
			for (const FLuaFunctionDoc& Doc : Binding.Docs)
			{
				OutLines.Add(FString::Printf(TEXT("| `%s` | %s | %s |"), *EscapeTableCell(Doc.Signature),
					*EscapeTableCell(Doc.Description), *EscapeTableCell(Doc.Returns)));
			}
		}
	}

	// Stand-in choice of the layout: one section per binding with a table of its records, in registration order.
	TArray<FString> MakeMarkdownDocs(const TArray<FVelmireLuaBinding>& Bindings)
	{
		TArray<FString> Lines;
		Lines.Add(TEXT("# Lua bindings"));
		Lines.Add(FString());
		Lines.Add(TEXT("`help(binding?)` lists the bindings, or the functions of one binding, in the session log."));
		for (const FVelmireLuaBinding& Binding : Bindings)
		{
			AppendBinding(Binding, Lines);
		}
		return Lines;
	}
}
