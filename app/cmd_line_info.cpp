#include "app/cmd_line_info.h"

#include "framework/wide.h"

void CCmdLineInfo::ParseParam(LPCWSTR parameter, BOOL isFlag, BOOL isLast)
{
    struct Keyword {
        ov::TextView word;
        ov::Text& target;
    };
    const Keyword keywords[] = {
        {u"DEFAULT:", m_defaultPath},
        {u"CURRENT:", m_currentPath},
        {u"USER:", m_userName},
    };
    const ov::Text text = FromWide(parameter);
    for (const Keyword& keyword : keywords) {
        // The keyword is searched for anywhere in the text, but removed by length from its
        // beginning: a keyword has to come first, and its position is not checked.
        if (text.find(keyword.word) != ov::Text::npos) {
            keyword.target = text.substr(keyword.word.size());
            return;
        }
    }
    if (text.empty() || isFlag)
        return;
    switch (m_positional++) {
    case 0:
        m_defaultPath = text;
        if (isLast)
            m_currentPath = text;
        break;
    case 1:
        m_currentPath = text;
        break;
    case 2:
        m_userName = text;
        break;
    default:
        break;
    }
}
