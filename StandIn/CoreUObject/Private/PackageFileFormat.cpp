#include "PackageFileFormat.h"

#include "Containers/StringConv.h"
#include "Misc/FileHelper.h"

#include <nlohmann/json.hpp>

// Stand-in choice: a package file (.uasset/.umap) holds UTF-8 JSON:
// {
//   "FileType": "VlmrStandInPackage",          (identifies the format)
//   "FileVersion": 1,
//   "PackageName": "/Game/Dir/Asset",
//   "PackageFlags": <uint32>,
//   "Objects": [                                 (outers before inners, otherwise in creation order)
//     {
//       "Name": "Asset",
//       "Outer": "",                            (outer path inside the package: "" = the package, "Asset", "Asset:Sub")
//       "Class": "/Script/Module.ClassName",
//       "Flags": ["RF_Public", "RF_Standalone"],
//       "Properties": { "PropertyName": "<export text>", "StaticArray[1]": "<export text>" }
//     }
//   ]
// }

namespace UE::CoreUObject::StandIn::Private
{
	namespace
	{
		using FJson = nlohmann::ordered_json;

		const char* const FileTypeName = "VlmrStandInPackage";
		constexpr int32 FileVersion = 1;

		struct FFlagName
		{
			EObjectFlags Flag;
			const char* Name;
		};

		constexpr FFlagName SavedFlagNames[] = {
			{ RF_Public, "RF_Public" },
			{ RF_Standalone, "RF_Standalone" },
			{ RF_Transactional, "RF_Transactional" },
		};

		std::string ToUtf8(const FString& Text)
		{
			FTCHARToUTF8 Converted(*Text);
			return std::string(reinterpret_cast<const char*>(Converted.Get()), Converted.Length());
		}

		FString FromUtf8(const std::string& Text)
		{
			return FString(UTF8_TO_TCHAR(Text.c_str()));
		}

		FJson FlagsToJson(EObjectFlags Flags)
		{
			FJson Result = FJson::array();
			for (const FFlagName& FlagName : SavedFlagNames)
			{
				if ((Flags & FlagName.Flag) != 0)
				{
					Result.push_back(FlagName.Name);
				}
			}
			return Result;
		}

		EObjectFlags FlagsFromJson(const FJson& Json)
		{
			EObjectFlags Flags = RF_NoFlags;
			if (!Json.is_array())
			{
				return Flags;
			}
			for (const FJson& Entry : Json)
			{
				for (const FFlagName& FlagName : SavedFlagNames)
				{
					if (Entry.is_string() && Entry.get<std::string>() == FlagName.Name)
					{
						Flags |= FlagName.Flag;
					}
				}
			}
			return Flags;
		}

		bool ReadString(const FJson& Object, const char* Key, FString& OutValue)
		{
			const auto Found = Object.find(Key);
			if (Found == Object.end() || !Found->is_string())
			{
				return false;
			}
			OutValue = FromUtf8(Found->get<std::string>());
			return true;
		}

		bool ParseObjectEntry(const FJson& Json, FSavedObjectEntry& OutEntry, FString& OutError)
		{
			FString Name;
			if (!Json.is_object() || !ReadString(Json, "Name", Name) || Name.IsEmpty()
				|| !ReadString(Json, "Outer", OutEntry.OuterPath) || !ReadString(Json, "Class", OutEntry.ClassPath))
			{
				OutError = TEXT("an object entry lacks its Name, Outer or Class");
				return false;
			}
			OutEntry.Name = FName(*Name);
			const auto Flags = Json.find("Flags");
			OutEntry.Flags = Flags != Json.end() ? FlagsFromJson(*Flags) : RF_NoFlags;
			const auto Properties = Json.find("Properties");
			if (Properties == Json.end())
			{
				return true;
			}
			if (!Properties->is_object())
			{
				OutError = FString::Printf(TEXT("the properties of '%s' are not an object"), *Name);
				return false;
			}
			for (auto Property = Properties->begin(); Property != Properties->end(); ++Property)
			{
				if (!Property.value().is_string())
				{
					OutError = FString::Printf(TEXT("property '%s' of '%s' is not text"), *FromUtf8(Property.key()), *Name);
					return false;
				}
				OutEntry.Properties.Emplace(FromUtf8(Property.key()), FromUtf8(Property.value().get<std::string>()));
			}
			return true;
		}
	}

	std::string WritePackageFileText(const FSavedPackageData& Data)
	{
		FJson Root = FJson::object();
		Root["FileType"] = FileTypeName;
		Root["FileVersion"] = FileVersion;
		Root["PackageName"] = ToUtf8(Data.PackageName);
		Root["PackageFlags"] = Data.PackageFlags;
		FJson Objects = FJson::array();
		for (const FSavedObjectEntry& Entry : Data.Objects)
		{
			FJson Object = FJson::object();
			Object["Name"] = ToUtf8(Entry.Name.ToString());
			Object["Outer"] = ToUtf8(Entry.OuterPath);
			Object["Class"] = ToUtf8(Entry.ClassPath);
			Object["Flags"] = FlagsToJson(Entry.Flags);
			FJson Properties = FJson::object();
			for (const TPair<FString, FString>& Property : Entry.Properties)
			{
				Properties[ToUtf8(Property.Key)] = ToUtf8(Property.Value);
			}
			Object["Properties"] = MoveTemp(Properties);
			Objects.push_back(MoveTemp(Object));
		}
		Root["Objects"] = MoveTemp(Objects);
		return Root.dump(1, '\t');
	}

	bool ParsePackageFileText(const std::string& Text, FSavedPackageData& OutData, FString& OutError)
	{
		const FJson Root = FJson::parse(Text, nullptr, false);
		if (Root.is_discarded() || !Root.is_object())
		{
			OutError = TEXT("the file is not valid JSON");
			return false;
		}
		const auto FileType = Root.find("FileType");
		const auto Version = Root.find("FileVersion");
		if (FileType == Root.end() || !FileType->is_string() || FileType->get<std::string>() != FileTypeName)
		{
			OutError = TEXT("the file is not a package file");
			return false;
		}
		if (Version == Root.end() || !Version->is_number_integer() || Version->get<int64>() != FileVersion)
		{
			OutError = TEXT("the package file has an unknown version");
			return false;
		}
		if (!ReadString(Root, "PackageName", OutData.PackageName))
		{
			OutError = TEXT("the package file has no package name");
			return false;
		}
		const auto Flags = Root.find("PackageFlags");
		OutData.PackageFlags = Flags != Root.end() && Flags->is_number_unsigned() ? Flags->get<uint32>() : 0;
		const auto Objects = Root.find("Objects");
		if (Objects == Root.end() || !Objects->is_array())
		{
			OutError = TEXT("the package file has no object list");
			return false;
		}
		OutData.Objects.Reset();
		for (const FJson& Object : *Objects)
		{
			FSavedObjectEntry Entry;
			if (!ParseObjectEntry(Object, Entry, OutError))
			{
				return false;
			}
			OutData.Objects.Add(MoveTemp(Entry));
		}
		return true;
	}
}

namespace UE::CoreUObject::StandIn
{
	bool ReadSavedPackageFile(const FString& Filename, FSavedPackageData& OutData, FString* OutError)
	{
		TArray<uint8> Bytes;
		FString Error;
		if (!FFileHelper::LoadFileToArray(Bytes, *Filename))
		{
			Error = FString::Printf(TEXT("cannot read '%s'"), *Filename);
		}
		else if (Private::ParsePackageFileText(std::string(reinterpret_cast<const char*>(Bytes.GetData()), Bytes.Num()), OutData, Error))
		{
			return true;
		}
		if (OutError)
		{
			*OutError = Error;
		}
		return false;
	}
}
