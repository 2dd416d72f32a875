// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
// Has clang-tidy look at what is declared in the project's files only. By default its checks walk
// through every header of the system, only to say nothing of it: four fifths of its time. The
// static analyzer is not concerned, as it begins with the functions of the project anyway.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

namespace {

class Narrowing final : public clang::ASTConsumer {
    void HandleTranslationUnit(clang::ASTContext& context) override
    {
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : context.getTranslationUnitDecl()->decls())
            if (!sources.isInSystemHeader(declaration->getLocation()))
                own.push_back(declaration);
        context.setTraversalScope(own);
    }
};

class Narrow final : public clang::PluginASTAction {
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(
        clang::CompilerInstance&, llvm::StringRef) override
    {
        return std::make_unique<Narrowing>();
    }
    bool ParseArgs(const clang::CompilerInstance&, const std::vector<std::string>&) override
    {
        return true;
    }
    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<Narrow> narrow("own-code", "looks at own code only");

} // namespace
