// The 421 label keys in their fixed order with their built-in English texts.
// A key's place in this table is its label's index in every language slot.
#include "settings/label_builtins.h"

namespace tavi {

const std::array<LabelDefinition, kLabelCount> kLabelDefinitions = {{
    {"RL_ABANUTT", "Abandoned Utterances"},                                            // 1
    {"RL_AGE", "age"},                                                                 // 2
    {"RL_AGERANGE", "Age Range"},                                                      // 3
    {"RL_ALLOTHER", "All Other Speakers"},                                             // 4
    {"RL_ALLWDS", "All Words"},                                                        // 5
    {"RL_ALLWDSINCLMZ", "All Words Including Mazes"},                                  // 6
    {"RL_AND", "and"},                                                                 // 7
    {"RL_ASC", "Completed Utts"},                                                      // 8
    {"RL_ASCI", "C&I Utts"},                                                           // 9
    {"RL_ASCIV", "C&I Verbal Utts"},                                                   // 10
    {"RL_ASCV", "Completed Verbal Utts"},                                              // 11
    {"RL_ASI", "Intelligible Utts"},                                                   // 12
    {"RL_AST", "Total Utts"},                                                          // 13
    {"RL_ASTV", "Total Verbal Utts"},                                                  // 14
    {"RL_BASEDON", "Based on"},                                                        // 15
    {"RL_BASEDONL", "based on"},                                                       // 16
    {"RL_BCTABLE", "Bound Clitic Table"},                                              // 17
    {"RL_BEGINTCUT", "Beginning of Cut"},                                              // 18
    {"RL_BETWEEN", "Between Utterances"},                                              // 19
    {"RL_BM", "Bound Morphemes"},                                                      // 20
    {"RL_BMTABLE", "Bound Morpheme Table"},                                            // 21
    {"RL_CATEGORY", "Category"},                                                       // 22
    {"RL_CBSET", "Same Amount of Elapsed Time"},                                       // 23
    {"RL_CBSNO", "Same Number of"},                                                    // 24
    {"RL_CDANAL", "Code Analysis"},                                                    // 25
    {"RL_CDSONLY", "Codes Only"},                                                      // 26
    {"RL_CDSPEC", "Codes Specified"},                                                  // 27
    {"RL_CDSPECMSG", "No [codes] were found on entries beginning with + = : ; or -."}, // 28
    {"RL_CDUTT", "Utterance Codes"},                                                   // 29
    {"RL_CDUTTMSG", "No utterance codes were found."},                                 // 30
    {"RL_CDWDMSG", "No word codes were found."},                                       // 31
    {"RL_CDWORD", "Word Codes"},                                                       // 32
    {"RL_COMPAREDTO", "Compared to"},                                                  // 33
    {"RL_COMPARISON", "Comparison"},                                                   // 34
    {"RL_CONTEXT", "Context"},                                                         // 35
    {"RL_CONVERSATION", "Conversation"},                                               // 36
    {"RL_CQCATEG", "Comprehension Question"},                                          // 37
    {"RL_CQSCORE", "CQ Score"},                                                        // 38
    {"RL_CURAGE", "Current Age"},                                                      // 39
    {"RL_CUTAT", "Cut at"},                                                            // 40
    {"RL_DATABASE", "database"},                                                       // 41
    {"RL_DBINFO", "Database Information"},                                             // 42
    {"RL_DBSELECTCRITERIA", "Database Selection Criteria"},                            // 43
    {"RL_DC1ST", "Words Mentioned First"},                                             // 44
    {"RL_DCEIMIT", "Exact Imitations"},                                                // 45
    {"RL_DCNOSIP", "Other Speaker's Intonation Prompts"},                              // 46
    {"RL_DCNOSQ", "Other Speaker's Questions"},                                        // 47
    {"RL_DCOR", "Other Responses"},                                                    // 48
    {"RL_DCRC", "Requests for Clarification"},                                         // 49
    {"RL_DCRIMIT", "Reduced Imitations"},                                              // 50
    {"RL_DCTITLE", "Discourse Summary"},                                               // 51
    {"RL_DCTLU", "Turn Length (utterances)"},                                          // 52
    {"RL_DCTLW", "Turn Length (words)"},                                               // 53
    {"RL_DCUWOV", "Utterances with Overlapping Speech"},                               // 54
    {"RL_DCYNR", "Yes/No Responses to Questions"},                                     // 55
    {"RL_DIFFBM", "Different Bound Morphemes"},                                        // 56
    {"RL_DUETOLINKING", "due to linking"},                                             // 57
    {"RL_ELSEWH", "Elsewhere"},                                                        // 58
    {"RL_ENDQ", "Ending in ?"},                                                        // 59
    {"RL_ENDTCUT", "End of Cut"},                                                      // 60
    {"RL_ENTIRETRAN", "Entire Transcript"},                                            // 61
    {"RL_ENTIRETRANCUT", "Entire Transcript Cut"},                                     // 62
    {"RL_EQUATEDBY", "Equated by"},                                                    // 63
    {"RL_ERRCDONLY", "Error Codes Only"},                                              // 64
    {"RL_ERRORCDS", "Error Codes"},                                                    // 65
    {"RL_ERRORS", "Errors"},                                                           // 66
    {"RL_ESSCATEG", "ESS Category"},                                                   // 67
    {"RL_ESSSCORE", "ESS Composite Score"},                                            // 68
    {"RL_EUCODE", "Utterance-level Error Codes"},                                      // 69
    {"RL_EWCODE", "Word-level Error Codes"},                                           // 70
    {"RL_EXCLASET", "Excluded from Analysis Set"},                                     // 71
    {"RL_OTHCDONLY", "Other Codes Only"},                                              // 72
    {"RL_EXCLUDE", "Exclude"},                                                         // 73
    {"RL_EXPAND", "Expand"},                                                           // 74
    {"RL_EXPLORE", "Explore"},                                                         // 75
    {"RL_EXPOSITION", "Exposition"},                                                   // 76
    {"RL_EXPUTT", "Utterances Found"},                                                 // 77
    {"RL_EXPWDCD", "Words and Codes Found"},                                           // 78
    {"RL_EXPWDRT", "Word Roots Found"},                                                // 79
    {"RL_EXPWORDS", "Words Found"},                                                    // 80
    {"RL_FEMALES", "Females"},                                                         // 81
    {"RL_FIRSTWD", "First Word"},                                                      // 82
    {"RL_FLCODES", "Fluency Codes"},                                                   // 83
    {"RL_FLPLUSLINES", "Fluency Behaviors (plus lines)"},                              // 84
    {"RL_FLUCODE", "Utterance-level Fluency Codes"},                                   // 85
    {"RL_FLWCODE", "Word-level Fluency Codes"},                                        // 86
    {"RL_FORMAT", "Format"},                                                           // 87
    {"RL_GC", "Grammatical Categories"},                                               // 88
    {"RL_GCLISTS", "Grammatical Category Lists"},                                      // 89
    {"RL_GCPCVERBS", "% Utterances with Verbs"},                                       // 90
    {"RL_GCVERBS", "Mean Verbs/Utterance"},                                            // 91
    {"RL_GENDER", "Gender"},                                                           // 92
    {"RL_GRADE", "Grade"},                                                             // 93
    {"RL_HCCQ", "Comprehension Questions"},                                            // 94
    {"RL_HCESS", "Expository Scoring Scheme"},                                         // 95
    {"RL_HCNSS", "Narrative Scoring Scheme"},                                          // 96
    {"RL_HCONQ", "Oral Narrative Quality"},                                            // 97
    {"RL_HCPSS", "Persuasion Scoring Scheme"},                                         // 98
    {"RL_HCSI", "Subordination Index"},                                                // 99
    {"RL_HEADCODE", "CODES"},                                                          // 100
    {"RL_HEADDC", "DISCOURSE"},                                                        // 101
    {"RL_HEADERRSMRY", "Omissions and Errors Summary"},                                // 102
    {"RL_HEADINT", "INTELLIGIBILITY"},                                                 // 103
    {"RL_HEADMAZE", "MAZES"},                                                          // 104
    {"RL_HEADOTHER", "OTHER"},                                                         // 105
    {"RL_HEADPAUSE", "PAUSES"},                                                        // 106
    {"RL_HEADRATE", "RATE"},                                                           // 107
    {"RL_HEADSEM", "SEMANTICS"},                                                       // 108
    {"RL_HEADSEMSMRY", "Semantics Summary"},                                           // 109
    {"RL_HEADSM", "SYNTAX/MORPHOLOGY"},                                                // 110
    {"RL_HEADSYNSMRY", "Syntax/Morphology Summary"},                                   // 111
    {"RL_HEADTL", "TRANSCRIPT LENGTH"},                                                // 112
    {"RL_HEADTLS", "Transcript Length Summary"},                                       // 113
    {"RL_HEADTTL", "TURN LENGTH"},                                                     // 114
    {"RL_INMORPHS", "in Morphemes"},                                                   // 115
    {"RL_INTELVUTTS", "Intelligible Verbal Utterances"},                               // 116
    {"RL_INTELWDS", "Intelligible Words"},                                             // 117
    {"RL_INTROS", "Interrupted Other Speaker"},                                        // 118
    {"RL_ISOUC", "Utterance Codes Only"},                                              // 119
    {"RL_ISOWC", "Word Codes Only"},                                                   // 120
    {"RL_ISOWUC", "Word and Utterance Codes"},                                         // 121
    {"RL_ITALICMEAS", "Measures in Italics"},                                          // 122
    {"RL_ITALICSNOTE",
     "Values in italics lie outside the SD interval around the database mean."},  // 123
    {"RL_ITALICSNOTE2", "# Calculations based on current analysis set"},          // 124
    {"RL_ITEMS", "Items"},                                                        // 125
    {"RL_LANGUAGEMEASURE", "Language Measure"},                                   // 126
    {"RL_LENINTEL", "Transcript Length and Intelligibility"},                     // 127
    {"RL_LLANALYSIS", "Word List Analysis"},                                      // 128
    {"RL_LLPC", "% of List"},                                                     // 129
    {"RL_LLSET", "List Settings"},                                                // 130
    {"RL_LOCATION", "Location"},                                                  // 131
    {"RL_MACROANAL", "MACRO ANALYSIS"},                                           // 132
    {"RL_MAINBODY", "Main Body"},                                                 // 133
    {"RL_MALES", "Males"},                                                        // 134
    {"RL_MATCHEDBY", "Matched by"},                                               // 135
    {"RL_MAX", "Max"},                                                            // 136
    {"RL_MAZES", "Mazes"},                                                        // 137
    {"RL_MDHEAD", "Maze Distribution Tables"},                                    // 138
    {"RL_MDMML", "Number of Mazes by Maze Length"},                               // 139
    {"RL_MDMUL", "Number of Mazes by Utterance Length"},                          // 140
    {"RL_MDPCUWM", "% of Utterances with Mazes by Utterance Length"},             // 141
    {"RL_MEAN", "Mean"},                                                          // 142
    {"RL_MEANTL", "Mean Turn Length"},                                            // 143
    {"RL_MEASURES", "Measures"},                                                  // 144
    {"RL_MEDIANTL", "Median Turn Length"},                                        // 145
    {"RL_MIN", "Min"},                                                            // 146
    {"RL_MINUTES", "Minutes"},                                                    // 147
    {"RL_MLUM", "MLU in Morphemes"},                                              // 148
    {"RL_MLUW", "MLU in Words"},                                                  // 149
    {"RL_MONTHS", "months"},                                                      // 150
    {"RL_MOVEAVE", "Moving-Average"},                                             // 151
    {"RL_MULTWORDS", "Multiple Words"},                                           // 152
    {"RL_MZAVEWDSPER", "Average Words per Maze"},                                 // 153
    {"RL_MZCOMP", "Maze Components"},                                             // 154
    {"RL_MZFP", "Filled Pauses"},                                                 // 155
    {"RL_MZNOFPLIST", "Filled pauses not determined - list not available."},      // 156
    {"RL_MZPERUTT", "Average Mazes per Utterance"},                               // 157
    {"RL_MZPHR", "Phrase"},                                                       // 158
    {"RL_MZPW", "Part Word"},                                                     // 159
    {"RL_MZREP", "Repetitions"},                                                  // 160
    {"RL_MZREV", "Revisions"},                                                    // 161
    {"RL_MZTOT", "Total Number of Mazes"},                                        // 162
    {"RL_MZTOTMZWDS", "Total Maze Words"},                                        // 163
    {"RL_MZWD", "Word"},                                                          // 164
    {"RL_MZWDS", "Maze Words"},                                                   // 165
    {"RL_MZWDSPCTOT", "Maze Words as % of Total Words"},                          // 166
    {"RL_NARRATION", "Narration"},                                                // 167
    {"RL_NDW", "Number Different Words (NDW)"},                                   // 168
    {"RL_NOCDS", "No Codes"},                                                     // 169
    {"RL_NOECDS", "No Error Codes"},                                              // 170
    {"RL_NONBINARIES", "Non-binary"},                                             // 171
    {"RL_NONECDS", "Non-error Codes"},                                            // 172
    {"RL_NORI", "No Root Identification"},                                        // 173
    {"RL_NOT", "not"},                                                            // 174
    {"RL_NSSCATEG", "NSS Category"},                                              // 175
    {"RL_NSSSCORE", "NSS Composite Score"},                                       // 176
    {"RL_NTW", "Number Total Words (NTW)"},                                       // 177
    {"RL_NUMABANUTT", "Number of Abandoned Utterances"},                          // 178
    {"RL_NUMMZ", "Number of Mazes"},                                              // 179
    {"RL_NUMUTTA", "Analysis Set Utterances"},                                    // 180
    {"RL_NUMUTTT", "Total Utterances"},                                           // 181
    {"RL_OBLIG", "Obligatory Contexts"},                                          // 182
    {"RL_OCCUR", "Occurrences"},                                                  // 183
    {"RL_OMISSIONS", "Omissions"},                                                // 184
    {"RL_OMIT", "Omitted"},                                                       // 185
    {"RL_OMITBM", "Omitted Bound Morphemes"},                                     // 186
    {"RL_OMITCL", "Omitted Bound Clitics"},                                       // 187
    {"RL_OMITERR", "Omissions and Errors"},                                       // 188
    {"RL_OMITWD", "Omitted Words"},                                               // 189
    {"RL_ONC", "Oral Narrative Comprehension"},                                   // 190
    {"RL_ONLYINCLUDE", "Only include"},                                           // 191
    {"RL_ONQCATEG", "ONQ Category"},                                              // 192
    {"RL_ONQSCORE", "ONQ Score"},                                                 // 193
    {"RL_PAREN", "Parenthetical Remarks"},                                        // 194
    {"RL_PARTICIPANTS", "Participants"},                                          // 195
    {"RL_PAUSEDATA", "Pause Data"},                                               // 196
    {"RL_PCABANUTT", "% Abandoned Utterances"},                                   // 197
    {"RL_PCERRORS", "% Utterances with Errors"},                                  // 198
    {"RL_PCINTEL", "% Intelligible Utterances"},                                  // 199
    {"RL_PCINTELWDS", "% Intelligible Words"},                                    // 200
    {"RL_PCINTROS", "% Utts Interrupted Other Speaker"},                          // 201
    {"RL_PCMZCOMP", "% of Maze Components"},                                      // 202
    {"RL_PCMZWD", "% Maze Words"},                                                // 203
    {"RL_PCPZTIME", "Pause Time as % of Total Time"},                             // 204
    {"RL_PCRQU", "% Responses to Questions"},                                     // 205
    {"RL_PCULOV", "% Utts with Overlapping Speech"},                              // 206
    {"RL_PCUTTWITHMZ", "% Utterances with Mazes"},                                // 207
    {"RL_PERSUASION", "Persuasion"},                                              // 208
    {"RL_PFDCYNR", "Yes/No Responses"},                                           // 209
    {"RL_PFUDDBMEAN", "Database Mean"},                                           // 210
    {"RL_PFUDHEAD", "Utterance Distribution"},                                    // 211
    {"RL_PFUDUUL", "Utterances by Utterance Length"},                             // 212
    {"RL_PFWLTYPE", "Word List Types"},                                           // 213
    {"RL_PLFOOTNOTEALL", "* All database samples have this plus line."},          // 214
    {"RL_PLFOOTNOTESOME", "* Some database samples do not have this plus line."}, // 215
    {"RL_PLLABEL", "Plus Line"},                                                  // 216
    {"RL_PRECEDING", "Preceding"},                                                // 217
    {"RL_PSSCATEG", "PSS Category"},                                              // 218
    {"RL_PSSSCORE", "PSS Composite Score"},                                       // 219
    {"RL_PZBNUM", "Number of Between-utterance Pauses"},                          // 220
    {"RL_PZWNUM", "Number of Within-utterance Pauses"},                           // 221
    {"RL_QUICKLOOK", "Quick Look"},                                               // 222
    {"RL_RATE", "Rate"},                                                          // 223
    {"RL_RPALLNOTIME", "Pauses were not timed."},                                 // 224
    {"RL_RPAVE", "Average"},                                                      // 225
    {"RL_RPMISSING", "Timing information was not provided."},                     // 226
    {"RL_RPNUM", "Number"},                                                       // 227
    {"RL_RPNUMOF", "Number of"},                                                  // 228
    {"RL_RPPAUSES", "Pauses"},                                                    // 229
    {"RL_RPPAUSETIME", "Pause Time"},                                             // 230
    {"RL_RPSOMENOTIME", "Some pauses were not timed."},                           // 231
    {"RL_RPUTTPERMIN", "Utterances/Minute"},                                      // 232
    {"RL_RPWDPERMIN", "Words/Minute"},                                            // 233
    {"RL_SAIDFIRST", "Said First"},                                               // 234
    {"RL_SAMPLEDATE", "Sample Date"},                                             // 235
    {"RL_SAMPLES", "Samples"},                                                    // 236
    {"RL_SCORE", "Score"},                                                        // 237
    {"RL_SD", "SD"},                                                              // 238
    {"RL_SDFOOTNOTEPOST", "SD from the database mean"},                           // 239
    {"RL_SDFOOTNOTEPRE", "* At least"},                                           // 240
    {"RL_SEARCHAREA", "Search Area"},                                             // 241
    {"RL_SECONDS", "Seconds"},                                                    // 242
    {"RL_SECTION", "Section"},                                                    // 243
    {"RL_SECTIONS", "Sections"},                                                  // 244
    {"RL_SELUTTS", "Selected Utterances"},                                        // 245
    {"RL_SICODE", "SI Code"},                                                     // 246
    {"RL_SINGLEWORD", "Single Word"},                                             // 247
    {"RL_SISCORE", "SI Composite Score"},                                         // 248
    {"RL_SMRTITLE", "Standard Measures Report"},                                  // 249
    {"RL_SOFUTTYPE", "Summary of Utterance Types"},                               // 250
    {"RL_SPEAKER", "Speaker"},                                                    // 251
    {"RL_SPEAKERS", "Speakers"},                                                  // 252
    {"RL_SPK1ST", "1st Speaker"},                                                 // 253
    {"RL_SPK1ST2ND", "1st and 2nd Speakers"},                                     // 254
    {"RL_SPK2ND", "2nd Speaker"},                                                 // 255
    {"RL_SPKBOTH", "Both Speakers (intersection)"},                               // 256
    {"RL_SPKEITHER", "Either Speaker (all)"},                                     // 257
    {"RL_STRENGTH", "Strength"},                                                  // 258
    {"RL_SUL", "Standard Utterance Lists"},                                       // 259
    {"RL_SWL", "Standard Word Lists"},                                            // 260
    {"RL_TIMEMIN", "Elapsed Time (minutes)"},                                     // 261
    {"RL_TLDIST", "Turn Length Distribution"},                                    // 262
    {"RL_TOT", "Tot"},                                                            // 263
    {"RL_TOTAL", "Total"},                                                        // 264
    {"RL_TOTFREQ", "Total Frequency"},                                            // 265
    {"RL_TOTMZCOMP", "Total Maze Components"},                                    // 266
    {"RL_TOTQ", "Total Questions"},                                               // 267
    {"RL_TOTVUTTS", "Total Verbal Utterances"},                                   // 268
    {"RL_TOTWDS", "Total Words"},                                                 // 269
    {"RL_TRAN1ST", "1st Transcript"},                                             // 270
    {"RL_TRAN1ST2ND", "1st and 2nd Transcripts"},                                 // 271
    {"RL_TRAN2ND", "2nd Transcript"},                                             // 272
    {"RL_TRANBOTH", "Both Transcripts (intersection)"},                           // 273
    {"RL_TRANCUT", "Transcript Cut"},                                             // 274
    {"RL_TRANEITHER", "Either Transcript (all)"},                                 // 275
    {"RL_TRANINFO", "Transcript Information"},                                    // 276
    {"RL_TRANSCRIPTS", "Transcripts"},                                            // 277
    {"RL_TSCIV", "Complete Intelligible Verbal Utterances"},                      // 278
    {"RL_TSCV", "Complete Verbal Utterances"},                                    // 279
    {"RL_TSPI", "Partly Intelligible Utterances"},                                // 280
    {"RL_TSUCT", "Utterances with Comments"},                                     // 281
    {"RL_TSUI", "Unintelligible Utterances"},                                     // 282
    {"RL_TSUPR", "Utterances with Parenthetical Remarks"},                        // 283
    {"RL_TSUUC", "Utterances with Utterance Codes"},                              // 284
    {"RL_TSUWC", "Utterances with Word Codes"},                                   // 285
    {"RL_TSUXC", "Utterances with Excluding Codes"},                              // 286
    {"RL_TSVB", "Verbal Utterances"},                                             // 287
    {"RL_TTR", "Type-Token Ratio"},                                               // 288
    {"RL_TURN", "Turn"},                                                          // 289
    {"RL_UCTABLE", "Utterance Code Table"},                                       // 290
    {"RL_UIWORDS", "Unintelligible Words"},                                       // 291
    {"RL_ULCODE", "Utterances with Codes"},                                       // 292
    {"RL_ULCOMMENT", "Utterances with Comments"},                                 // 293
    {"RL_ULDIAL", "Utterances with Dialogue"},                                    // 294
    {"RL_ULECODE", "Utterances with Error Codes"},                                // 295
    {"RL_ULEXMK", "Exclamations"},                                                // 296
    {"RL_ULIMIT", "Imitations"},                                                  // 297
    {"RL_ULINTR", "Interrupted Utterances"},                                      // 298
    {"RL_ULNV", "Nonverbal Utterances"},                                          // 299
    {"RL_ULOMIT", "Utterances with Omissions"},                                   // 300
    {"RL_ULONEWD", "One-word Utterances"},                                        // 301
    {"RL_ULOV", "Utterances with Overlapping Speech"},                            // 302
    {"RL_ULPAREN", "Utterances with Parenthetical Remarks"},                      // 303
    {"RL_ULPAUS", "Utterances with Pauses"},                                      // 304
    {"RL_ULPRMT", "Intonation Prompts"},                                          // 305
    {"RL_ULQUES", "Questions"},                                                   // 306
    {"RL_ULRIP", "Responses to Intonation Prompts"},                              // 307
    {"RL_ULRQ", "Responses to Questions"},                                        // 308
    {"RL_ULSPON", "Spontaneous Utterances"},                                      // 309
    {"RL_ULSTMT", "Statements"},                                                  // 310
    {"RL_ULUNI", "Unintelligible Utterances"},                                    // 311
    {"RL_ULYN", "Yes/No Responses to Questions"},                                 // 312
    {"RL_UTTERANCES", "Utterances"},                                              // 313
    {"RL_UTTS", "Utts"},                                                          // 314
    {"RL_UTTWMZ", "Utterances with Mazes"},                                       // 315
    {"RL_VALUE", "Value"},                                                        // 316
    {"RL_VERBFAC", "VERBAL FACILITY"},                                            // 317
    {"RL_VERBFACSMRY", "Verbal Facility Summary"},                                // 318
    {"RL_WCTABLE", "Word Code Table"},                                            // 319
    {"RL_WDPERMIN", "Words per Minute"},                                          // 320
    {"RL_WDSCDS", "Words and Codes"},                                             // 321
    {"RL_WDSCDSENDQ", "Words and Codes Ending in ?"},                             // 322
    {"RL_WEAKNESS", "Weakness"},                                                  // 323
    {"RL_WITHIN", "Within Utterances"},                                           // 324
    {"RL_WITHINSINGLEMAZE", "Within a Single Maze"},                              // 325
    {"RL_WMBM", "Bound Morphemes"},                                               // 326
    {"RL_WMBROWN", "Brown's Stage"},                                              // 327
    {"RL_WMBS1", "Early I"},                                                      // 328
    {"RL_WMBS2", "Late I"},                                                       // 329
    {"RL_WMBS3", "II"},                                                           // 330
    {"RL_WMBS4", "III"},                                                          // 331
    {"RL_WMBS5", "Early IV"},                                                     // 332
    {"RL_WMBS6", "Late IV/Early V"},                                              // 333
    {"RL_WMBS7", "Late V"},                                                       // 334
    {"RL_WMBS8", "Post V"},                                                       // 335
    {"RL_WMCT", "Bound Clitics"},                                                 // 336
    {"RL_WMEARM", "Expected Age Range (months)"},                                 // 337
    {"RL_WMMLM", "MLU in Morphemes"},                                             // 338
    {"RL_WMMLW", "MLU in Words"},                                                 // 339
    {"RL_WMOBM", "Omitted Bound Morphemes"},                                      // 340
    {"RL_WMOCT", "Omitted Bound Clitics"},                                        // 341
    {"RL_WMOW", "Omitted Words"},                                                 // 342
    {"RL_WMULM", "Utterance Length in Morphemes"},                                // 343
    {"RL_WMULW", "Utterance Length in Words"},                                    // 344
    {"RL_WNL", "within normal limits"},                                           // 345
    {"RL_WORDBASE", "Word Base"},                                                 // 346
    {"RL_WORDS", "Words"},                                                        // 347
    {"RL_WRTABLE", "Word Root Table"},                                            // 348
    {"RL_WCLIST", "Word and Code List"},                                          // 349
    {"RL_DBWCLIST", "Database Word and Code List"},                               // 350
    {"RL_DBPLINE", "Database Plus Line"},                                         // 351
    {"RL_EXPLWC", "Explore Word and Code List"},                                  // 352
    {"RL_NTWINITIALS", "NTW"},                                                    // 353
    {"RL_NDWINITIALS", "NDW"},                                                    // 354
    {"RL_TTRINITIALS", "TTR"},                                                    // 355
    {"RL_PCNMFC", "% Utts with Nonmainstream Forms"},                             // 356
    {"RL_NMFCODES", "Nonmainstream-form Codes"},                                  // 357
    {"RL_ULFLCODE", "Utterances with Fluency Codes"},                             // 358
    {"RL_ULNMCODE", "Utterances with Nonmainstream-form Codes"},                  // 359
    {"RL_NMFUCODE", "Utterance-level Nonmainstream-form Codes"},                  // 360
    {"RL_NMFWCODE", "Word-level Nonmainstream-form Codes"},                       // 361
    {"RL_NUTTWFCODE", "Number of Utterances with Fluency Codes"},                 // 362
    {"RL_NUTTWNMFC", "Number of Utterances with Nonmainstream-form Codes"},       // 363
    {"RL_FLCDONLY", "Fluency Codes Only"},                                        // 364
    {"RL_NMFCDONLY", "Nonmainstream-form Codes Only"},                            // 365
    {"RL_CSCODES", "Code-switch Codes"},                                          // 366
    {"RL_ULCSCODE", "Utterances with Code-switch Codes"},                         // 367
    {"RL_NUTTWCSCODE", "Number of Utterances with Code-switch Codes"},            // 368
    {"RL_CSCDONLY", "Code-switch Codes Only"},                                    // 369
    {"RL_CSWCODE", "Word-level Code-switch Codes"},                               // 370
    {"RL_CSUCODE", "Utterance-level Code-switch Codes"},                          // 371
    {"RL_SDINTERVAL", "SD Interval"},                                             // 372
    {"RL_PCWDERRORS", "% Word Errors"},                                           // 373
    {"RL_FABLE", "Fable"},                                                        // 374
    {"RL_PLAY", "Play"},                                                          // 375
    {"PL_BILINGUAL", "Bilingual"},                                                // 376
    {"PL_PLSELECTION", "Bilingual Subgroup"},                                     // 377
    {"PL_CON", "Conversation"},                                                   // 378
    {"PL_EXPO", "Exposition"},                                                    // 379
    {"PL_FIRSTNAME", "First Name"},                                               // 380
    {"PL_NAR", "Narration"},                                                      // 381
    {"PL_NEWCA", "Current Age"},                                                  // 382
    {"PL_NEWCLOCK", "Starting Time"},                                             // 383
    {"PL_NEWCPT", "Collection Point"},                                            // 384
    {"PL_NEWDOB", "Date of Birth"},                                               // 385
    {"PL_NEWDOE", "Date of Sample"},                                              // 386
    {"PL_NEWENAME", "Examiner Name"},                                             // 387
    {"PL_NEWETH", "Ethnicity"},                                                   // 388
    {"PL_NEWGENDER", "Gender"},                                                   // 389
    {"PL_NEWFEMALE", "Female"},                                                   // 390
    {"PL_NEWMALE", "Male"},                                                       // 391
    {"PL_NEWNONBINARY", "Non-binary"},                                            // 392
    {"PL_NEWGRADE", "Grade"},                                                     // 393
    {"PL_NEWNAME", "Name"},                                                       // 394
    {"PL_NEWOSPK", "Other Speaker"},                                              // 395
    {"PL_NEWPED", "Parent Education"},                                            // 396
    {"PL_NEWSGRP", "Subgroup"},                                                   // 397
    {"PL_NEWPLSELECT", "Bilingual Subgroup"},                                     // 398
    {"PL_NEWSID", "Participant Id"},                                              // 399
    {"PL_NEWTNAME", "Transcriber Name"},                                          // 400
    {"PL_NEWTSPK", "Target Speaker"},                                             // 401
    {"PL_OTHER", "Other"},                                                        // 402
    {"PL_PERS", "Persuasion"},                                                    // 403
    {"PL_PLUSCA", "CA"},                                                          // 404
    {"PL_PLUSCONTEXT", "Context"},                                                // 405
    {"PL_PLUSCPT", "Collect"},                                                    // 406
    {"PL_PLUSDOB", "DOB"},                                                        // 407
    {"PL_PLUSDOE", "DOE"},                                                        // 408
    {"PL_PLUSENAME", "Examiner"},                                                 // 409
    {"PL_PLUSF", "F"},                                                            // 410
    {"PL_PLUSM", "M"},                                                            // 411
    {"PL_PLUSN", "N"},                                                            // 412
    {"PL_PLUSLANG", "Language"},                                                  // 413
    {"PL_PLUSLOC", "Location"},                                                   // 414
    {"PL_PLUSPED", "ParentEduc"},                                                 // 415
    {"PL_PLUSSID", "ParticipantId"},                                              // 416
    {"PL_PLUSTNAME", "Transcriber"},                                              // 417
    {"PL_SPEAKER1", "Child"},                                                     // 418
    {"PL_SPEAKER2", "Examiner"},                                                  // 419
    {"PL_FABLE", "Fable"},                                                        // 420
    {"PL_PLAY", "Play"},                                                          // 421
}};

} // namespace tavi
