#include "tests/ui/built_pages.h"

#include "tests/ui/library.h"

#include <windows.h>

std::vector<const expected::Page*> BuiltPages()
{
    std::vector<const expected::Page*> pages;
    Library::Get().Load();
    for (const expected::Page& page : expected::Pages()) {
        if (FindResourceW(Library::Get().Module(), MAKEINTRESOURCEW(page.templateId), RT_DIALOG))
            pages.push_back(&page);
    }
    return pages;
}

std::vector<std::wstring> BuiltTitles()
{
    std::vector<std::wstring> titles;
    for (const expected::Page* page : BuiltPages()) {
        const std::string title = page->title;
        titles.emplace_back(title.begin(), title.end());
    }
    return titles;
}
