// Checks that the module's sources use only what a real Unreal editor and the real VelmireAI host offer:
//   vlmr_boundary_check <module sources folder> <stand-in folder>
// A violation is a line of the module that
//   - includes a stand-in-only header: its path contains "StandIn", it is listed as a header in <stand-in>/StandInOnly.txt,
//     or it is a header of the stand-in outside a Public/ folder (a private header or the headless editor's), or
//   - names a stand-in-only symbol: an identifier containing "StandIn" or "STANDIN_", or a symbol listed in StandInOnly.txt.
// Prints one "<file>:<line>: <what>" per violation, then "<N> violations"; exits 1 when there is any.
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace
{
	namespace fs = std::filesystem;

	struct FStandInOnlyNames
	{
		std::vector<std::string> Headers;
		std::vector<std::string> Symbols;
	};

	struct FStandInHeaders
	{
		// Include paths of the headers under <Module>/Public/.
		std::vector<std::string> Public;
		// Paths, relative to the stand-in folder, of every other header.
		std::vector<std::string> NotPublic;
	};

	bool IsSourceFile(const fs::path& Path)
	{
		const std::string Extension = Path.extension().string();
		return Extension == ".h" || Extension == ".hpp" || Extension == ".inl" || Extension == ".cpp" || Extension == ".cs";
	}

	bool IsHeader(const fs::path& Path)
	{
		const std::string Extension = Path.extension().string();
		return Extension == ".h" || Extension == ".hpp" || Extension == ".inl";
	}

	bool EndsWithPath(const std::string& Path, const std::string& Tail)
	{
		return Path == Tail || (Path.size() > Tail.size() && Path.compare(Path.size() - Tail.size(), Tail.size(), Tail) == 0
			&& Path[Path.size() - Tail.size() - 1] == '/');
	}

	bool Contains(const std::vector<std::string>& Items, const std::string& Item)
	{
		return std::find(Items.begin(), Items.end(), Item) != Items.end();
	}

	// Sorted, so that the report does not depend on the order the file system lists them in.
	std::vector<fs::path> ListFiles(const fs::path& Root, bool (*Accept)(const fs::path&))
	{
		std::vector<fs::path> Files;
		std::error_code Error;
		for (fs::recursive_directory_iterator It(Root, Error), End; !Error && It != End; It.increment(Error))
		{
			if (It->is_regular_file(Error) && Accept(It->path()))
			{
				Files.push_back(It->path());
			}
		}
		std::sort(Files.begin(), Files.end());
		return Files;
	}

	bool ReadStandInOnlyNames(const fs::path& ListFile, FStandInOnlyNames& OutNames)
	{
		std::ifstream Stream(ListFile);
		if (!Stream)
		{
			return false;
		}
		for (std::string Line; std::getline(Stream, Line);)
		{
			std::istringstream Words(Line);
			std::string Kind;
			std::string Name;
			if (Words >> Kind >> Name && (Kind == "header" || Kind == "symbol"))
			{
				(Kind == "header" ? OutNames.Headers : OutNames.Symbols).push_back(Name);
			}
		}
		return true;
	}

	FStandInHeaders ListStandInHeaders(const fs::path& StandInDir)
	{
		FStandInHeaders Headers;
		const std::string PublicFolder = "/Public/";
		for (const fs::path& File : ListFiles(StandInDir, &IsHeader))
		{
			const std::string Relative = File.lexically_relative(StandInDir).generic_string();
			const size_t ModuleEnd = Relative.find('/');
			if (ModuleEnd != std::string::npos && Relative.compare(ModuleEnd, PublicFolder.size(), PublicFolder) == 0)
			{
				Headers.Public.push_back(Relative.substr(ModuleEnd + PublicFolder.size()));
			}
			else
			{
				Headers.NotPublic.push_back(Relative);
			}
		}
		return Headers;
	}

	class FBoundaryCheck
	{
	public:
		FBoundaryCheck(const fs::path& InModuleDir, FStandInOnlyNames InNames, FStandInHeaders InHeaders)
			: ModuleDir(InModuleDir)
			, Names(std::move(InNames))
			, StandInHeaders(std::move(InHeaders))
		{
			for (const fs::path& File : ListFiles(ModuleDir, &IsSourceFile))
			{
				ModuleFiles.push_back(File.lexically_relative(ModuleDir).generic_string());
			}
		}

		int32_t Run()
		{
			for (const std::string& File : ModuleFiles)
			{
				CheckFile(File);
			}
			std::cout << Violations << " violations" << std::endl;
			return Violations == 0 ? 0 : 1;
		}

	private:
		void Report(const std::string& File, int32_t Line, const std::string& What)
		{
			std::cout << File << ":" << Line << ": " << What << "\n";
			++Violations;
		}

		bool IsModuleHeader(const std::string& IncludePath) const
		{
			return std::any_of(ModuleFiles.begin(), ModuleFiles.end(), [&IncludePath](const std::string& File) { return EndsWithPath(File, IncludePath); });
		}

		// Empty when the include is allowed, else why it is not.
		std::string FindIncludeViolation(const std::string& IncludePath) const
		{
			if (IncludePath.find("StandIn") != std::string::npos || Contains(Names.Headers, IncludePath))
			{
				return "includes the stand-in-only header " + IncludePath;
			}
			if (IsModuleHeader(IncludePath) || Contains(StandInHeaders.Public, IncludePath))
			{
				return std::string();
			}
			for (const std::string& Header : StandInHeaders.NotPublic)
			{
				if (EndsWithPath(Header, IncludePath))
				{
					return "includes " + IncludePath + ", a header of the stand-in that is not public (StandIn/" + Header + ")";
				}
			}
			return std::string();
		}

		void CheckSymbols(const std::string& File, int32_t LineNumber, const std::string& Line)
		{
			for (const std::string& Identifier : SplitIdentifiers(Line))
			{
				if (Identifier.find("StandIn") != std::string::npos || Identifier.find("STANDIN_") != std::string::npos)
				{
					Report(File, LineNumber, "names the stand-in-only symbol " + Identifier);
				}
			}
			for (const std::string& Symbol : Names.Symbols)
			{
				for (size_t Position = Line.find(Symbol); Position != std::string::npos; Position = Line.find(Symbol, Position + 1))
				{
					if (IsWholeName(Line, Position, Symbol.size()))
					{
						Report(File, LineNumber, "names the stand-in-only symbol " + Symbol);
					}
				}
			}
		}

		static bool IsNameCharacter(char Character)
		{
			return std::isalnum(static_cast<unsigned char>(Character)) || Character == '_';
		}

		static std::vector<std::string> SplitIdentifiers(const std::string& Line)
		{
			std::vector<std::string> Identifiers;
			for (size_t Start = 0; Start < Line.size();)
			{
				size_t End = Start;
				while (End < Line.size() && IsNameCharacter(Line[End]))
				{
					++End;
				}
				if (End > Start)
				{
					Identifiers.push_back(Line.substr(Start, End - Start));
				}
				Start = End + 1;
			}
			return Identifiers;
		}

		// The path of an #include line ("X" or <X>); empty for any other line.
		static std::string FindIncludePath(const std::string& Line)
		{
			std::istringstream Stream(Line);
			char Hash = 0;
			std::string Rest;
			if (!(Stream >> Hash) || Hash != '#' || !std::getline(Stream >> std::ws, Rest))
			{
				return std::string();
			}
			const std::string Keyword = "include";
			if (Rest.compare(0, Keyword.size(), Keyword) != 0)
			{
				return std::string();
			}
			const size_t Open = Rest.find_first_of("\"<", Keyword.size());
			const size_t Close = Open == std::string::npos ? Open : Rest.find_first_of("\">", Open + 1);
			return Close == std::string::npos ? std::string() : Rest.substr(Open + 1, Close - Open - 1);
		}

		static bool IsWholeName(const std::string& Line, size_t Position, size_t Length)
		{
			return (Position == 0 || !IsNameCharacter(Line[Position - 1]))
				&& (Position + Length == Line.size() || !IsNameCharacter(Line[Position + Length]));
		}

		void CheckFile(const std::string& File)
		{
			std::ifstream Stream(ModuleDir / File);
			int32_t LineNumber = 0;
			for (std::string Line; std::getline(Stream, Line);)
			{
				++LineNumber;
				const std::string IncludePath = FindIncludePath(Line);
				if (!IncludePath.empty())
				{
					const std::string Violation = FindIncludeViolation(IncludePath);
					if (!Violation.empty())
					{
						Report(File, LineNumber, Violation);
					}
					continue;
				}
				CheckSymbols(File, LineNumber, Line);
			}
		}

		fs::path ModuleDir;
		FStandInOnlyNames Names;
		FStandInHeaders StandInHeaders;
		std::vector<std::string> ModuleFiles;
		int32_t Violations = 0;
	};
}

int main(int ArgumentCount, char** Arguments)
{
	if (ArgumentCount != 3)
	{
		std::cerr << "usage: vlmr_boundary_check <module sources folder> <stand-in folder>" << std::endl;
		return 2;
	}
	const fs::path ModuleDir(Arguments[1]);
	const fs::path StandInDir(Arguments[2]);
	FStandInOnlyNames Names;
	if (!ReadStandInOnlyNames(StandInDir / "StandInOnly.txt", Names))
	{
		std::cerr << "error: cannot read " << (StandInDir / "StandInOnly.txt").string() << std::endl;
		return 2;
	}
	if (!fs::is_directory(ModuleDir))
	{
		std::cerr << "error: no folder " << ModuleDir.string() << std::endl;
		return 2;
	}
	return FBoundaryCheck(ModuleDir, std::move(Names), ListStandInHeaders(StandInDir)).Run();
}
