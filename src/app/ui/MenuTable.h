#pragma once

#include <QString>
#include <array>

// The thirteen entries of the navigation: icon, message number of the label and of the page's title. Number 0: a fixed
// text.
struct MenuRow
{
    QLatin1String icon;
    int label;
    int title;
};

inline constexpr std::array<MenuRow, 13> kMenuTable{{{QLatin1String("system"), 850, 330},
                                                     {QLatin1String("nvr"), 0, 748},
                                                     {QLatin1String("intelligent"), 851, 69},
                                                     {QLatin1String("users"), 852, 852},
                                                     {QLatin1String("event"), 853, 853},
                                                     {QLatin1String("server"), 854, 312},
                                                     {QLatin1String("emap"), 855, 310},
                                                     {QLatin1String("screens"), 856, 311},
                                                     {QLatin1String("startup"), 857, 39},
                                                     {QLatin1String("videowall"), 752, 36},
                                                     {QLatin1String("svd"), 0, 797},
                                                     {QLatin1String("tooling"), 858, 858},
                                                     {QLatin1String("exit"), 51, 51}}};

// In the live language; "NVR" and "SVD" are the same in all of them.
QString MenuText(int index);
QString PageTitle(int index);
