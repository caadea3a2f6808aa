#include "tests/pages/expected_texts.h"

namespace expected
{

// The texts include misspellings and repeated blanks.
// clang-format off
const std::vector<FixedText>& FixedTexts()
{
    static const std::vector<FixedText> texts = {
        // Titles of the pages
        {2058, Extent::Whole, "Branding"},
        {9345, Extent::Whole, "Cell Handling"},
        {7011, Extent::Whole, "Colour Table"},
        {2006, Extent::Whole, "Certifying"},
        {5001, Extent::Whole, "Conforming"},
        {8313, Extent::Whole, "Custom Reports"},
        {5002, Extent::Whole, "Drafting"},
        {5003, Extent::Whole, "Drawing Scales"},
        {5004, Extent::Whole, "Feature Tables"},
        {10016, Extent::Whole, "File Paths"},
        {5006, Extent::Whole, "Languages"},
        {9347, Extent::Whole, "Logging"},
        {5008, Extent::Whole, "File Naming"},
        {8910, Extent::Whole, "Miscellaneous"},
        {9342, Extent::Whole, "Model Naming"},
        {5009, Extent::Whole, "Reference Files"},
        {5010, Extent::Whole, "Reporting"},
        {10007, Extent::Whole, "Scan Period"},
        {2046, Extent::Whole, "Signature Cells"},
        {2047, Extent::Whole, "Title Blocks"},
        {5040, Extent::Whole, "Third Party Apps"},
        {2007, Extent::Whole, "URLs"},
        {2037, Extent::Whole, "Users"},
        {5011, Extent::Whole, "Version"},
        {5012, Extent::Whole, "Watermark Integrity"},
        {5041, Extent::Whole, "Watermark Placement"},
        {2065, Extent::Whole, "Score Weighting"},
        // Entries of lists
        {10000, Extent::Whole, "Before"},
        {10001, Extent::Whole, "After"},
        {10002, Extent::Whole, "Until"},
        {10003, Extent::Whole, "Or"},
        {10004, Extent::Whole, "And"},
        {10005, Extent::Whole, "Whichever is first"},
        {10006, Extent::Whole, "Whichever is last"},
        {11050, Extent::Whole, "This date..."},
        {11051, Extent::Whole, "V8 Conversion"},
        {11052, Extent::Whole, "Today"},
        {11053, Extent::Whole, "First Certified"},
        {11054, Extent::Whole, "Last Certified"},
        {11055, Extent::Whole, "First Certification Watermark Invalidated"},
        {11056, Extent::Whole, "Last Certification Watermark Invalidated"},
        {11057, Extent::Whole, "First Digital Signature Placed"},
        {11058, Extent::Whole, "Last Digital Signature Placed"},
        {11059, Extent::Whole, "First Digital Signature Invalidated"},
        {11060, Extent::Whole, "Last Digital Signature Invalidated"},
        {5037, Extent::Whole, "Leave existing elements as-is"},
        {5038, Extent::Whole, "Automatically remap existing elements to the closest matching colour"},
        {5039, Extent::Whole, "Prompt the user before doing anything"},
        // Names of the codes of the older scan period variable
        {5021, Extent::Whole, "Before this date..."},
        {5022, Extent::Whole, "On this date..."},
        {5023, Extent::Whole, "After this date..."},
        {5024, Extent::Whole, "On or Before this date..."},
        {5025, Extent::Whole, "On or After this date..."},
        {5026, Extent::Whole, "Before v8 conversion"},
        {5027, Extent::Whole, "After v8 conversion"},
        {5028, Extent::Whole, "On or Before v8 conversion"},
        {5029, Extent::Whole, "On or After v8 conversion"},
        // The order of the list differs from the one in this text; the example agrees with the list
        {10008, Extent::Part, "0: Or, 1: Until, 2: And"},
        {10008, Extent::Part, "1, 1, 1, 1, 8, 2007, 1, 2, 0, 3, 6, 5, 2016, 0"},
        // Title blocks
        {2039, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK<H>Check Title Blocks<D>This option enables the checking for Title "
         "Blocks in each master model. This may affect the conformity of a file in both the Conform and "
         "Reporting tools."},
        {2056, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_DEFAULT_MODEL<H>Check Default Model<D>This option ensures that only the "
         "default model in a design file will be checked for title block cells. The default model is the "
         "initial model that cannot be deleted by the user."},
        {2040, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_ALLOW_ONE<H>Allow Only One Title Block<D>If enabled, then this option "
         "means that only one title block is allowed for each master model. If multiple or no title blocks "
         "are found, then a conformance error is generated."},
        {2041, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_COUNT_EDF<H>Count Enter Data Fields<D>If enabled, this option means that "
         "the user is not allowed to changed the number of Enter Data Fields when editing the Title Block "
         "information."},
        {2042, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_CELLLIBS<H>Title Block Cell Library<D>This defines the full cell library "
         "name and path for the Title Block. Multiple cell libraries can be defined with a semi-colon "
         "separator."},
        {2043, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_CELLS<H>Title Block Cells<D>This string defines the allowed cell names "
         "for the Title Block. Multiple cells can be defined with a semi-colon separator."},
        {2044, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_CELLLIBS<H>Browse Title Block Library<D>Click here to allow multiple "
         "cell library paths to be defined through a File Requestor dialog box."},
        {2045, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_CELLS<H>Browse Title Block Cells<D>Click here to allow multiple cell "
         "names to be defined through a pop-up dialog box."},
        {2071, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGSETS<H>Check Title Blocks Tag Sets<D>This option enables the "
         "checking of Title Blocks tag sets in each master model. Set this option if the Title Block cell "
         "is required to have tags from one or more tag sets. This may affect the conformity of a file in "
         "both the Conform and Reporting tools."},
        {2077, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGSETS<H>Edit Title Blocks Tag Sets<D>This text field defines the "
         "Title Blocks tag sets used in each master model. This is a comma-separated list of tag set "
         "names, e.g. \"A1 TITLE INFILL, B1 TITLE INFILL\""},
        {2070, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_TAGSETS<H>Browse Title Block Tag Sets<D>Click here to allow multiple tag "
         "sets to be defined through the multi-string editor."},
        {2072, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGDEFS<H>Check Title Blocks Tag Definitions<D>This option defines "
         "the required tag definitions of the Title Block cell in each master model. Set this option if "
         "the Title Block cell is required to have tags from one or more tag sets. This may affect the "
         "conformity of a file in both the Conform and Reporting tools."},
        {2075, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGDEFS<H>Edit Title Blocks Tag Definitions<D>This text field "
         "defines the required tag definitions of the Title Block cell in each master model. This can be "
         "defined as a comma separated list of tag definitions, e.g. \"Title1,Title2,Designer,Revision\"."},
        {2078, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_TAGDEFS<H>Browse Title Block Tag Defs<D>Click here to allow multiple tag "
         "definitions to be defined through the multi-string editor."},
        {2074, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGVALUES<H>Check Title Blocks Tag Values<D>This option forces a "
         "match on specific tag values of the Title Block cell in each master model. Set this option if "
         "the Title Block cell is required to have specific tag values for one or more tag definitions. "
         "These values may be numeric ranges or use regular expressions for pattern-matching. This may "
         "affect the conformity of a file in both the Conform and Reporting tools."},
        {2079, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_TAGVALUES<H>Browse Title Block Tag Values<D>Click here to define the "
         "required values for each required tag definition."},
        {2073, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGSPELLCHECK<H>Check Title Blocks Tag Spelling<D>This option "
         "enables the checking of spelling in Title Blocks tags in each master model. Set the names of "
         "tags that require correct spelling - for example Title and Description tags. This may affect the "
         "conformity of a file in both the Conform and Reporting tools."},
        {2076, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TITLEBLOCK_TAGSPELLCHECK<H>Edit Title Blocks Tag Spelling<D>This textfield "
         "defines a comma-separated list of tag definitions that will have their user-defined tag values "
         "spell-checked. This is useful for title and description text that is used as metadata for "
         "searching, for example in Document Management Systems like ProjectWise. Tag values that don't "
         "match words in the active dictionary will report as conformance errors in the Check/Fix and "
         "Reporting tools."},
        {2080, Extent::Whole,
         "<T>_ORTHOVAL_TITLEBLOCK_TAGSPELLCHECK<H>Browse Title Block Tags for Spell Check<D>Click here to "
         "define the tag names that need to be spell-checked."},
        // Signature cells
        {2050, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_SIGNATURECELL<H>Check Signature Cell<D>This option enables the checking for "
         "Signature Cells in each master model. This may affect the conformity of a file in both the "
         "Conform and Reporting tools."},
        {2055, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_DEFAULT_MODEL<H>Check Default Model<D>This option ensures that only "
         "the default model in a design file will be checked for signature cells. The default model is the "
         "initial model that cannot be deleted by the user."},
        {2052, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_ALLOW_ONE<H>Allow Only One Signature Cell<D>If enabled, then this "
         "option means that only one Signature Cell is allowed for each master model. If multiple or no "
         "Signature Cells are found, then a conformance error is generated."},
        {2051, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_COUNT_EDF<H>Count Enter Data Fields<D>If enabled, this option means "
         "that the user is not allowed to changed the number of Enter Data Fields when editing the "
         "Signature Cell information."},
        {2053, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_CELLLIBS<H>Signature Cell Library<D>This defines the full cell "
         "library name and path for the Signature Cell. Multiple cell libraries can be defined with a "
         "semi-colon separator."},
        {2054, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_CELLS<H>Signature Cells<D>This string defines the allowed cell names "
         "for the Signature Cells. Multiple cells can be defined with a semi-colon separator."},
        {2048, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_CELLLIBS<H>Browse Signature Cell Library<D>Click here to allow "
         "multiple cell library paths to be defined through a File Requestor dialog box."},
        {2049, Extent::Whole,
         "<T>_ORTHOVAL_SIGNATURECELL_CELLS<H>Browse Signature Cells<D>Click here to allow multiple cell "
         "names to be defined through a pop-up dialog box."},
        // File naming
        {8900, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_FILENAME<H>File Name<D>This option defines the required file naming "
         "convention, with each template represented as semi-colon separated quoted strings, which usually "
         "contain either wildcard characters or regular expressions.  The type of Regular Expressions "
         "supported are defined by the variable: _ORTHOVAL_WILDCARD_TYPE. The file name and extension "
         "should always be specified, for example 'PROJ-*.DGN'. If more than one format is allowed, then "
         "multiple formats can be entered separated by a semi-colon, or as separate lines using the append "
         "command '>'. Multiple formats are effectively a logical 'OR', so for example:\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME = \"B-0??.DGN\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME > \"C-0??.DGN\"\r\n"
         "Would match 'B-012.DGN' OR 'C-056.DGN' but not 'D-012.DGN' if _ORTHOVAL_WILDCARD_TYPE = 3.\r\n"
         "An example using Perl regular expressions (_ORTHOVAL_WILDCARD_TYPE = 4) to match the AEC "
         "standard or General disciplines might be:\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME = "
         "\"[a-zA-Z0-9_.]{1,20}G(BS|CS|IG|KP)[a-zA-Z0-9_.]{4}(dwg|dgn|DWG|DGN)\"\r\n"
         "\r\n"
         "Each template will be displayed as a selectable suggestion in the Conform dialog."},
        {8908, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_FILENAME_DESCR<H>File Name Description<D>This string defines a "
         "human-readable description of each template string for the file naming convention defined by the "
         "variable _ORTHOVAL_CONVENTION_FILENAME above. There should be one description for each "
         "template.\r\n"
         "For example, it might read \"General Discipline\";\"Hazardous Materials\";\"Survey/Mapping\" so "
         "the user can choose this named template rather than the string it must match, which can be "
         "complex for long regular expressions. This string will be displayed in the list of choices in "
         "Conform when choosing the template to change the file name to.\r\n"
         "For example, the AEC file naming standard might be:\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_DESCR = \"General Discipline (G-BS,G-CS,G-IG,G-KP)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_DESCR > \"Hazardous Materials "
         "(H-DT,H-EL,H-IG,H-LG,H-PP,H-QP,H-SC)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_DESCR > \"Survey/Mapping "
         "(V-AL,V-CP,V-EU,V-HP,V-HT,V-IG,V-LG)\"\r\n"
         "\t...etc."},
        {8902, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE<H>Help File Name<D>This option defines a "
         "documentation file or resource (such as a website URL) which describes the file naming "
         "convention. This can be helpful where the number of possible string combinations is quite large, "
         "such as for the AEC standard. This document or URL will be opened when the user clicks on the "
         "\"More Info\" button when fixing a mismatched design file name. If this variable is not defined "
         "or empty, then the \"More Info\" button will simply show the regular expression template that "
         "needs to be matched, which may be less explanatory."},
        {8903, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING<H>Help File Name String<D>This option defines a "
         "section of text which explains the file naming convention to the user. This can be helpful where "
         "the naming standard must follow some simple rules. This message will be displayed in Conform "
         "when an invalid file name is detected, and also in the dialog to fix the design file name. "
         "Semi-colons are treated as new-line characters, allowing multiple lines to be defined. For "
         "example, to show a help message explaining the AEC standard for file naming:\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING = \"1) Project Number: 1-20 characters\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING > \"2) Discipline: 1 upper-case letter followed by a "
         "hyphen (eg: A-,C-,E-,G-)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING > \"3) Model file type: 2 upper-case letters (eg: "
         "3D,DT,FL,EL,HP,KP,SC)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING > \"4) Text: Up to 4 characters\"\r\n"
         "\t_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING > \"For example: a General Border Sheet for project "
         "'00' might be '00G-BS000.dgn'\""},
        {8904, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_FILENAME_PROMPT<H>File Name Prompt<D>This option defines whether the "
         "user should be prompted to fix an incorrect design file when running Conform. If set to 0, then "
         "the user will not be prompted to fix the file name when Conforming, however an error will still "
         "be generated when a Report is run on the file."},
        // Model naming
        {8901, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_MODELNAME<H>Model Name<D>This option defines the required model naming "
         "convention, with each template represented as semi-colon separated quoted strings, which usually "
         "contain either wildcard characters or regular expressions. The type of Regular Expressions "
         "supported are defined by the variable: _ORTHOVAL_WILDCARD_TYPE.\r\n"
         "If more than one format is allowed, then multiple formats can be entered separated by a "
         "semi-colon, or as separate lines using the append command '>'.\r\n"
         "Multiple formats are effectively a logical 'OR', so for example:\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME = \"A-SHEET-??\"\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME > \"B-SHEET-??\"\r\n"
         "Would match 'A-SHEET-01' OR 'B-SHEET-99' but not 'D-SHEET-99.DGN' if _ORTHOVAL_WILDCARD_TYPE = "
         "3.\r\n"
         "\r\n"
         "An example using Perl regular expressions (_ORTHOVAL_WILDCARD_TYPE = 4) to match the AEC "
         "standard for Architectural disciplines might be:\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME = "
         "\"[a-zA-Z0-9_.]{1,20}(AD|A|AS|AE|AI|AG|AF)[0-9]{3}[a-zA-Z0-9_.]\"\r\n"
         "Each template will be displayed as a selectable suggestion in the Conform dialog."},
        {8909, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_MODELNAME_DESCR<H>Model Name Description<D>This string defines a "
         "human-readable description of each template string for the model naming convention defined by "
         "the variable _ORTHOVAL_CONVENTION_MODELNAME above. There should be one description for each "
         "template.\r\n"
         "For example, it might read \"General (Symbols, Legends, Notes)\";\"Plans (horizontal, plan & "
         "profile)\";\"Elevations\" so the user can choose this named template rather than the string it "
         "must match, which can be complex for long regular expressions. This string will be displayed in "
         "the list of choices in Conform when choosing the template to change the model name to.\r\n"
         "For example, the model naming standard might be:\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_DESCR = \"General (G-S*,G-L*,G-N*)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_DESCR > \"Plans (P-H*,P-P*)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_DESCR > \"Elevations (E-*)\"\r\n"
         "\t...etc."},
        {8906, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE<H>Help Model Name<D>This option defines a "
         "documentation file or resource (such as a website URL) which describes the model naming "
         "convention. This can be helpful where the number of possible string combinations is quite large, "
         "such as for the AEC standard. This document or URL will be opened when the user clicks on the "
         "\"More Info\" button when fixing a mismatched model name. If this variable is not defined or "
         "empty, then the \"More Info\" button will simply show the regular expression template that needs "
         "to be matched, which may be less explanatory."},
        {8907, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING<H>Help Model Name String<D>This option defines a "
         "section of text which explains the model naming convention to the user. This can be helpful "
         "where the naming standard must follow some simple rules. This message will be displayed in "
         "Conform when an invalid model name is detected, and also in the dialog to fix the model name. "
         "Semi-colons are treated as new-line characters, allowing multiple lines to be defined.\r\n"
         "For example:\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING = \"1) Project Number: 1-4 characters\"\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING > \"2) Model type: 1 upper-case letter (eg: 'S' for "
         "Sheet)\"\r\n"
         "\t_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING > \"3) Text: Up to 4 characters\""},
        {8905, Extent::Whole,
         "<T>_ORTHOVAL_CONVENTION_MODELNAME_PROMPT<H>Model Name Prompt<D>This option defines whether the "
         "user should be prompted to fix an incorrect model name when running Conform. If it is turned OFF "
         "(set to 0), then the user will not be prompted to fix the model name when Conforming, however an "
         "error will still be generated when a Report is run on the file."},
        // Feature tables
        {8300, Extent::Whole,
         "<T>_ORTHOVAL_USEDICTVERSIONING<H>Use Dict Versioning<D>This determines if Dictionary/Feature "
         "Table Versioning will be used. 0 = OFF, 1 = ON. If versioning is ON, then the administrator will "
         "be prompted for a revision number when a feature table is exported to the database."},
        {2005, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_SHAPESASLINEAR<H>Shapes As Linear<D>Allow shape types in linear settings box "
         "(Feature Type Options)."},
        {8301, Extent::Whole,
         "<T>_ORTHOVAL_SUPPORT_TRICAD<H>Support TriCAD<D>If ON, then design files created by TRICAD will "
         "be supported. This will add an extra 'TRICAD' prompt whenever a new feature table is created, to "
         "define whether the feature table is for use with TRICAD data. 0 = OFF, 1 = ON."},
        {8302, Extent::Whole,
         "<T>_ORTHOVAL_FEATURES_SHOWHIDDEN<H>Show Hidden Features<D>This option determines whether "
         "non-administrators can view features in the feature table that have the status 'Hide in Conform "
         "and Draft' set.\r\n"
         "By Default this option is OFF."},
        {8305, Extent::Whole,
         "<T>_ORTHOVAL_FEATURES_SHOWSUGGESTED<H>Show Suggested Features<D>This option determines whether "
         "users automatically inherit features suggested by other users when they open a feature table. If "
         "it is ON, then all users will automatically have suggested features added to their feature "
         "tables. If it is OFF, then suggested features are only automatically loaded by the user who "
         "suggested them. This means that conform/report will automatically ignore features suggested by "
         "the user, though this has no effect on certification. By Default this option is OFF."},
        {8310, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_ATTACHED_TAGS<H>Check Attached Tags<D>If this option is enabled, then the "
         "\"Attached Tags\" tab page will appear in the Feature Table Editor, allowing the administrator "
         "to define additional checks on tags attached to other features. If this variable is disabled, "
         "then the tab page will not appear and any features with tag requirements defined will have these "
         "options ignored for the purposes of checking and reporting. "},
        {8309, Extent::Whole,
         "<T>_ORTHOVAL_TABLE_ORDERBY_DESCRIPTION<H>Order Feature Tables By Description<D>This option "
         "forces the Feature Table Manager to display feature tables in alphabetical order of their "
         "descriptions. If this variable is missing or turned OFF, then feature tables will be ordered by "
         "name instead."},
        {8306, Extent::Whole,
         "<T>_ORTHOVAL_ALLOWED_TABLE_NAMES<H>Allowed Feature Tables<D>This variable defines a comma "
         "separated list of table names that can be selected by the user. Other feature tables not listed "
         "will be displayed to the user but disabled and therefore not selectable when choosing feature "
         "tables. This variable is primarily used for controlling feature table selection at the workspace "
         "level. For example, the administrator may wish to only allow a Civil feature table when the user "
         "is currently in a Civil workspace project. This variable only affects users who do not have "
         "editing privileges for feature tables. If this setting is left blank then no filtering of "
         "feature tables will occur, and all users can select from all available tables in the database."},
        {8307, Extent::Whole,
         "<T>_ORTHOVAL_ALLOWED_TABLE_NAMES<H>Edit Allowed Feature Tables<D>This button opens a dialog to "
         "allow the user to enter and edit multiple table names."},
        {8303, Extent::Whole,
         "<T>_ORTHOVAL_DISALLOWED_TABLE_NAMES<H>Disallowed Feature Tables<D>This variable defines a comma "
         "separated list of table names that are not allowed to be created by the user as feature table "
         "names. In addition, these illegal tables will never be displayed by the Feature Table Manager, "
         "even if they already exist.\r\n"
         "This variable is not usually required to be set, however some database systems have built-in "
         "tables that should never be created or overwritten. Therefore if your database defines any "
         "reserved words or table names, they should be defined in this variable to ensure the user never "
         "accidentally overwrites them. Note that feature tables always have the prefix \"Table_\" "
         "prepended to them in the database, so the full table name for a table named \"Civil\" will be "
         "\"Table_Civil\"."},
        {8308, Extent::Whole,
         "<T>_ORTHOVAL_TABLE_BACKUP_MAX<H>Maximum Backup Tables<D>This variable defines the number of "
         "unique feature tables that will be saved for backup purposes before the oldest backup will be "
         "overwritten. Backups of feature tables are automatically made prior to any modifications to "
         "existing tables. A value of zero will result in no backups ever being made."},
        {8315, Extent::Whole,
         "<T>_ORTHOVAL_SQL_LONG_STRING<H>SQL Long String Type<D>This variable defines the SQL column name "
         "for strings over 256 characters. Note that the SQL standard does not define a column type for "
         "strings over 256 characters, and therefore this setting is highly dependent on both the "
         "underlying database used and also the ODBC database driver. This is not usually required as "
         "Orthoval will guess the appropriate column type from the driver name; however it is possible to "
         "override Orthoval's default behaviour using this variable. An example column type to use might "
         "be \"VARCHAR(2000)\", which gives a string up to 2000 characters long and is supported by SQL "
         "Server 2008 and up, but is not standard SQL."},
        // Languages
        {8711, Extent::Whole,
         "<T>_ORTHOVAL_MENU_NAME<H>Orthoval Menu Name<D>This is the name of the Orthoval menu as it "
         "appears on the MicroStation main menu bar. You may want to change it to alter the position of "
         "the keyboard accelerator '~' if it clashes with an existing menu."},
        {8701, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_1<H>Language 1<D>This is the name of the language to appear "
         "in the top of the bilingual text dialog."},
        {8702, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_2<H>Language 2<D>This is the name of the language to appear "
         "at the bottom of the bilingual text dialog."},
        {8703, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1<H>Keyin 1<D>This is the keyin to execute prior to placing "
         "text for each language. These keyins can help differentiate between text in the first language "
         "and the second. Typically this will be done by changing the symbology (colour or level) or font "
         "effect (bold, underline, slant, etc)."},
        {8705, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2<H>Keyin 2<D>This is the keyin to execute prior to placing "
         "text for each language. These keyins can help differentiate between text in the first language "
         "and the second. Typically this will be done by changing the symbology (colour or level) or font "
         "effect (bold, underline, slant, etc)."},
        {8707, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE<H>Template File<D>This points to the Excel spreadsheet "
         "template file used for Bilingual Text Translation."},
        {8708, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE<H>Browse Template File<D>Browse path to specify "
         "Template file."},
        {8709, Extent::Whole,
         "<T>_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN<H>Initial Keyin<D>This keyin is activated when the "
         "Place Bilingual Text command is invoked. It can be used to ensure that the correct dimension "
         "settings and symbology are used."},
        // Users
        {2034, Extent::Whole,
         "<T>_ORTHOVAL_USERS_ALLOW_GROUPS<H>Allow User Groups<D>This option allows user groups to be used "
         "instead of naming each individual user in the User Manager. If this option is enabled, then "
         "users can log into Orthoval without needing to enter a password."},
        {2035, Extent::Whole,
         "<T>_ORTHOVAL_WINDOWS_AUTHENTICATION<H>Windows Authentication<D>This option is usually used in "
         "conjunction with the 'User Groups' option. It allows Orthoval to retrieve the current user's "
         "full name from a domain controller, or from the current Windows login if the full name is not "
         "specified or discovered."},
        {2036, Extent::Whole,
         "<T>_ORTHOVAL_USERS_CURRENT_GROUP<H>Current User Group<D>This setting only works if the 'Allow "
         "User Groups' option is enabled. It represents the current user group to use in a given workspace "
         "(e.g. 'CIVIL', 'ARCH', 'MECH', etc).  Usually this is defined in the User Configuration File "
         "(UCF) or Project Configuration File (PCF) so that different workspaces can use different default "
         "user groups without the user having to log in with different names and passwords. Multiple group "
         "names can be allowed concurrently. Each group name should be separated by a semi-colon ';'."},
        {2008, Extent::Whole,
         "<T>_ORTHOVAL_USERS_CURRENT_GROUP<H>Browse Current User Group<D>This button allows the user to "
         "enter multiple current group names into a list."},
        // URLs
        {8411, Extent::Whole,
         "<T>_ORTHOVAL_TECHSUPPORT_URL<H>Tech Support URL<D>This sets the URL for Technical Support "
         "information."},
        {8414, Extent::Whole,
         "<T>_ORTHOVAL_WEBSITE_URL<H>Website URL<D>This sets the URL for Orthoval information on the web."},
        // Version
        {9700, Extent::Whole,
         "<T>_ORTHOVAL_SERVER_VERSION<H>Server Version<D>This sets the current version of Orthoval that we "
         "are on. This version is used to define the directory name used to locate the executable files."},
        {9701, Extent::Whole,
         "<T>_ORTHOVAL_WARN_MAJOR_UPGRADE<H>Warn Major Version<D>This warns the administrator if the "
         "database has been worked on with a newer major version of Orthoval than the current version. A "
         "major version is the most significant digit in the version number, e.g. \"v6.0.0\" vs \"v7.0.0\""},
        {9702, Extent::Whole,
         "<T>_ORTHOVAL_WARN_MINOR_UPGRADE<H>Warn Minor Version<D>This warns the administrator if the "
         "database has been worked on with a newer minor version of Orthoval than the current version. A "
         "minor version is the second-most significant digit in the version number, e.g. \"v6.4.0\" vs "
         "\"v6.5.0\""},
        // Third party apps
        {8011, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_USERATTRIBUTES<H>Check User Data Attributes<D>This option defines whether to "
         "check user data attributes by default for conform and report, and also whether defined "
         "attributes are ON by default when adding a feature to the feature table. User Data Attributes "
         "are commonly used by third party applications such as Geopak and InRoads, and are displayed in "
         "MicroStation's 'Element Information' dialog box under the 'Attributes' tab page. It is OFF by "
         "default."},
        {8017, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_GEOPAK<H>Check GEOPAK elements<D>Allows elements created by GEOPAK to be "
         "checked and added to the feature table. It is ON by default."},
        {8018, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_INROADS<H>Check InRoads elements<D>Allows elements created by InRoads to be "
         "checked and added to the feature table. It is ON by default."},
        {8019, Extent::Whole,
         "<T>_ORTHOVAL_CHECK_TRIFORMA<H>Check MicroStation Triforma elements<D>Allows elements created by "
         "MicroStation Triforma to be checked and added to the feature table. It is ON by default."},
        // Miscellaneous
        {10010, Extent::Whole,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - NONE<D>No wildcards or regular expressions "
         "are allowed. The string must match the template exactly, for example an asterisk (*) will only "
         "match an asterisk in the same position."},
        {10009, Extent::Whole,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - DOS<D>DOS Wildcards are the same wildcards "
         "as supported by MS-DOS commands. Supported wildcards are:\r\n"
         "\t? - Represents any single letter or number\r\n"
         "\t* - Represents zero or more characters"},
        {10011, Extent::Whole,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - RANGES<D>DOS Wildcards are the same "
         "wildcards as used by MS-DOS commands. In addition, ranges, subsets and negation can also be "
         "specified using square brackets, hyphens and tildes respectively. Supported expressions are:\r\n"
         "\t? - Represents any single letter or number\r\n"
         "\t* - Represents zero or more characters\r\n"
         "\t| - Represents either zero or one character\r\n"
         "\t[ABC] - Represents a subset of allowed characters (A, B or C)\r\n"
         "\t[A-Z] - Represents a range of allowed characters (from A to Z)\r\n"
         "\t[^A-Z] - Represents a range of disallowed characters (from A to Z)"},
        {10012, Extent::Whole,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - SUBSETS<D>DOS Wildcards are the same "
         "wildcards as used by MS-DOS commands. In addition, ranges, subsets, negation and substrings can "
         "also be specified using square brackets, hyphens, tildes and commas respectively. Supported "
         "expressions are:\r\n"
         "\t? - Represents any single letter or number\r\n"
         "\t* - Represents zero or more characters\r\n"
         "\t| - Represents either zero or one character\r\n"
         "\t[ABC] - Represents a subset of allowed characters (A, B or C)\r\n"
         "\t[A-Z] - Represents a range of allowed characters (from A to Z)\r\n"
         "\t[^A-Z] - Represents a range of disallowed characters (from A to Z)\r\n"
         "\t[ABC,DEF] - Represents either the string ABC or DEF"},
        {10013, Extent::Beginning,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - PERL<D>Perl compatible regular expressions "
         "are a popular format of regular expressions supporting potentially very powerful and complex "
         "templates. They are more flexible than using wildcards, however this comes at the cost of "
         "readability."},
        {10014, Extent::Beginning,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Wildcard Type - POSIX<D>POSIX compatible regular expressions "
         "are very similar to Perl, with only minor differences in implementation."},
        {10015, Extent::Beginning,
         "<T>_ORTHOVAL_WILDCARD_TYPE<H>String Widlcard Type<D>Sets the types of wildcards supported for "
         "user-entered text matching. This includes Tag and Enter Data-Field values in the Feature Table "
         "Editor, file and model naming conventions, but does not include level name matching, nor text "
         "and dimension style ranges. The wildcard types are listed below:\r\n"
         "\r\n"
         "\t0: No wildcards, all characters are treated literally\r\n"
         "\t1\t: Basic wildcards as per MS-DOS, such as * and ?\r\n"
         "\t2\t: As above, but also supports character ranges [A-Z], sets [ABC] and negation [^ABC]\r\n"
         "\t3\t: As above, but also supports subsets of strings, such as [ABC,DEF]\r\n"
         "\t4\t: Full PERL regular expression parsing."},
        {11061, Extent::Beginning,
         "<T>_ORTHOVAL_TOOLS_REORDERALLWINDOWS<H>Re-order Windows Automatically<D>Set this to \"1\" to "
         "force Orthoval to reorder all dockable windows on startup, or docking / undocking of a Orthoval "
         "window. This option should normally be OFF (0) unless the computer has problems with dockable "
         "windows disappearing, caused by known Microsoft security patch KB2993651 and for some reason the "
         "official patch #2973201 can not be installed.\r\n"
         "\t"},
        {2066, Extent::Whole,
         "<T>_ORTHOVAL_AUTOLOGIN_USERDEFINED<H>Auto-login Allow User Defined<D>Defines whether Auto-Login "
         "can be turned ON or OFF by the user. If enabled, then there is a toggle on the Orthoval ribbon "
         "(Connect Edition) or Orthoval Drop-down Menu (MicroStation V8i) allowing the user to control "
         "Auto-Login. If it is OFF then the user cannot control Auto-Login."},
        {2067, Extent::Whole,
         "<T>_ORTHOVAL_AUTOLOGIN_DEFAULTVALUE<H>Auto-login Default Value<D>Defines whether Auto-Login is "
         "automatically turned ON or OFF for the user when MicroStation is first opened. If \"User "
         "Definable\" is enabled, then this represents the default value when the settings file is first "
         "created. If \"User Definable\" is disabled, then Auto-Login is locked to this value for all "
         "users."},
    };
    return texts;
}
// clang-format on

} // namespace expected
