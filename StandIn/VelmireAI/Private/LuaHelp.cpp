#include "LuaHelp.h"

#include "LuaSessionData.h"
#include "VelmireExtensionRegistrar.h"

namespace UE::VelmireAI::Private
{
	namespace
	{
		FString DescribeBinding(const FVelmireLuaBinding& Binding)
		{
			return FString::Printf(TEXT("%s (%d %s)"), *Binding.BindingName, Binding.Docs.Num(),
				Binding.Docs.Num() == 1 ? TEXT("function") : TEXT("functions"));
		}

		// Stand-in choice of the text: a count line, then one line per binding in registration order.
		void LogBindingList(FLuaSessionData& Session)
		{
			const TArray<FVelmireLuaBinding>& Bindings = FVelmireExtensionRegistrar::Get().GetBindings();
			Session.Log(FString::Printf(TEXT("help: %d Lua %s; help(\"<binding>\") lists a binding's functions"),
				Bindings.Num(), Bindings.Num() == 1 ? TEXT("binding") : TEXT("bindings")));
			for (const FVelmireLuaBinding& Binding : Bindings)
			{
				Session.Log(DescribeBinding(Binding));
			}
		}

		void LogBindingDocs(FLuaSessionData& Session, const FString& BindingName)
		{
			const FVelmireLuaBinding* Binding = FVelmireExtensionRegistrar::Get().FindBinding(BindingName);
			if (!Binding)
			{
				Session.Log(FString::Printf(TEXT("help: no Lua binding named '%s'"), *BindingName));
				return;
			}
			Session.Log(DescribeBinding(*Binding));
			for (const FLuaFunctionDoc& Doc : Binding->Docs)
			{
				Session.Log(FormatFunctionDoc(Doc));
			}
		}

		// A plain C function: a wrong argument type raises the standard Lua argument error before any C++ object exists.
		int LuaHelp(lua_State* L)
		{
			FLuaSessionData* Session = static_cast<FLuaSessionData*>(lua_touserdata(L, lua_upvalueindex(1)));
			const char* BindingName = luaL_optstring(L, 1, nullptr);
			if (BindingName)
			{
				LogBindingDocs(*Session, FString(UTF8_TO_TCHAR(BindingName)));
			}
			else
			{
				LogBindingList(*Session);
			}
			return 0;
		}
	}

	void InstallHelp(lua_State* L, FLuaSessionData& Session)
	{
		lua_pushlightuserdata(L, &Session);
		lua_pushcclosure(L, &LuaHelp, 1);
		lua_setglobal(L, "help");
	}

	FString FormatFunctionDoc(const FLuaFunctionDoc& Doc)
	{
		FString Line = Doc.Signature;
		if (!Doc.Description.IsEmpty())
		{
			Line += TEXT(" \u2014 ") + Doc.Description;
		}
		if (!Doc.Returns.IsEmpty())
		{
			Line += TEXT(" -> ") + Doc.Returns;
		}
		return Line;
	}
}
