// Reckoning with days.
#pragma once

// Both take every fourth year of a century for a leap year, its first one too. Days and months count from 1;
// others than the calendar's do no harm.

// 1 for Monday to 7 for Sunday; right from 1 March 1900 to the end of 2099.
int WeekDay(int day, int month, int year);
// Every century is reckoned as the 20th. There, from 1937 on, these are the weeks of ISO 8601, but for 0 in
// place of the old year's last week and 53 in place of the new year's first.
int WeekOfYear(int day, int month, int year);
