/*
** orvalis.h: the C interface of the Orvalis payroll engine.
**
** A host written in C, or in any language that calls C, drives the engine through four kinds
** of opaque handle:
**
**   orvalis_engine     an engine object, of the current class "MethodeCalculG_Nouv" or of the
**                      historic class "MethodeCalculG"
**   orvalis_employee   the employee record (VarCalculSalarie)
**   orvalis_line       the pay line record (SalarieCalculRubrique)
**   orvalis_recordset  a table: a source of reference data, an employee's variables, or a
**                      detail table that a pay line hands back
**
** A month goes: create an engine, give it its sources and its month, fill an employee record,
** call orvalis_prepare() for each preparation, then orvalis_calculate() once per pay line with
** a pay line record, and read the amounts back.
**
** Result codes. Every function returns ORVALIS_OK or one of the codes below, and leaves a
** text that orvalis_errmsg() gives. No C++ exception ever leaves this interface.
**
** Ownership. Every handle made by a *_new() function, or handed out by a getter that says
** so, belongs to the caller, who frees it with the matching *_free() function exactly once.
** A recordset is shared, never copied: a recordset given to an engine or a record stays
** readable and writable through its handle, and what the engine writes in it is seen there;
** freeing the handle releases the caller's share only. Texts returned through a
** `const char **` belong to the handle they were read from and stay valid until the next call
** that uses that handle (copy them to keep them).
**
** Misuse. A null handle, a handle of another kind, or a handle already freed gives
** ORVALIS_MISUSE: handles are checked against the live ones before they are used, so a freed
** handle is recognised as long as its address has not been given to a new handle since.
**
** Threads. A handle serves one thread at a time. Different engines and records may be used
** on different threads at once.
*/
#ifndef ORVALIS_ORVALIS_H_
#define ORVALIS_ORVALIS_H_

#ifdef __cplusplus
extern "C" {
#endif

#define ORVALIS_VERSION "0.1.0"
/* major * 1000000 + minor * 1000 + patch */
#define ORVALIS_VERSION_NUMBER 1000

/* ---- Result codes ------------------------------------------------------------------------ */
#define ORVALIS_OK 0       /* done */
#define ORVALIS_FAULT 1    /* the engine's entry point returned false, or an operation faulted */
#define ORVALIS_MISUSE 2   /* a null, freed or wrong handle, a null argument, a wrong call */
#define ORVALIS_NOTFOUND 3 /* no field, column, property, operation or class of that name */
#define ORVALIS_RANGE 4    /* a value out of the range of its field, or an index out of range */
#define ORVALIS_NOMEM 5    /* memory could not be had */
#define ORVALIS_TYPE 6     /* a field or cell read or written as another type than its own */
#define ORVALIS_ERROR 7    /* the arguments of an operation could not be read */

/* ---- Types of fields and cells ----------------------------------------------------------- */
#define ORVALIS_T_INT16 1     /* i... fields: 16-bit signed integer */
#define ORVALIS_T_INT32 2     /* l... fields: 32-bit signed integer */
#define ORVALIS_T_DOUBLE 3    /* d... fields, and number cells */
#define ORVALIS_T_TEXT 4      /* s... fields, and text cells (UTF-8) */
#define ORVALIS_T_BOOL 5      /* b... fields, and boolean cells */
#define ORVALIS_T_RECORDSET 6 /* rs... fields */
#define ORVALIS_T_NULL 7      /* null cells */

/* The two kinds of record, for orvalis_field_count() and orvalis_field_info(). */
#define ORVALIS_EMPLOYEE 1
#define ORVALIS_LINE 2

typedef struct orvalis_engine orvalis_engine;
typedef struct orvalis_employee orvalis_employee;
typedef struct orvalis_line orvalis_line;
typedef struct orvalis_recordset orvalis_recordset;

/* ---- Version and errors ------------------------------------------------------------------ */

/* The library's version text, "0.1.0"; the same as ORVALIS_VERSION of the header it was built
** with. Static storage. */
const char *orvalis_libversion(void);
/* The library's ORVALIS_VERSION_NUMBER. */
int orvalis_libversion_number(void);

/* The text of the last call on `handle` (any of the four kinds, passed as is): "ok" after a
** success, else what went wrong and where. With a null or unknown handle: the text of the
** last failed call of this thread. Valid until the next call on the same handle. Never null. */
const char *orvalis_errmsg(const void *handle);

/* The name of a result code, "ORVALIS_OK" ...; static storage; "unknown code" otherwise. */
const char *orvalis_errstr(int code);

/* ---- Engines ----------------------------------------------------------------------------- */

/* Makes an engine of the class named "MethodeCalculG_Nouv" or "MethodeCalculG" into *out.
** Its sources are those the class sets at its creation. ORVALIS_NOTFOUND for another name. */
int orvalis_engine_new(const char *engine_class, orvalis_engine **out);
/* Frees the engine. The recordsets it was given stay valid through their own handles. A null
** engine is ORVALIS_MISUSE. */
int orvalis_engine_free(orvalis_engine *engine);
/* The class name of the engine, into *out (static storage). */
int orvalis_engine_class(orvalis_engine *engine, const char **out);

/* gPeriodeEncours, the pay month as "dd/mm/yyyy" of its first day. */
int orvalis_engine_set_period(orvalis_engine *engine, const char *period);
int orvalis_engine_get_period(orvalis_engine *engine, const char **out);
/* gdSmicMensuel, the monthly SMIC the base "SMIC MENSUEL" leaves. */
int orvalis_engine_get_smic(orvalis_engine *engine, double *out);
int orvalis_engine_set_smic(orvalis_engine *engine, double value);

/* An engine's recordset property by its exact name ("gRsConstantes", "gRsTaux",
** "gRsTauxSpecifique", "gRsCumuls", "gRsConstantesFixes", "gRsVariables",
** "gRsConstantesFixesHistorique", "gRsCumulsHistoriqueSal", and for MethodeCalculG_Nouv only
** "gRsConstantesHistorique", "gRsBaremeTauxPAS"). A null recordset sets "no source".
** ORVALIS_NOTFOUND for a name the engine's class does not have. */
int orvalis_engine_set_source(orvalis_engine *engine, const char *name, orvalis_recordset *rs);
/* The source into *out as a new handle sharing it (free it), or null for "no source". */
int orvalis_engine_get_source(orvalis_engine *engine, const char *name, orvalis_recordset **out);

/* The one dialog of the engine. With a callback set, each message goes to it at once, with
** `user` as given; the text is valid during the call only. Without one (the default, or after
** setting a null callback), messages are kept and read with the two functions below. */
typedef void (*orvalis_message_fn)(void *user, const char *text);
int orvalis_engine_set_message_handler(orvalis_engine *engine, orvalis_message_fn fn, void *user);
int orvalis_engine_message_count(orvalis_engine *engine, int *out);
int orvalis_engine_message(orvalis_engine *engine, int index, const char **out);

/* The percentage of the last therapeutic part-time situation (iTauxTptNonSubroge) met on the
** calling thread: each thread has its own. */
int orvalis_tpt_rate(int *out);

/* ---- The two entry points ---------------------------------------------------------------- */

/* Runs the period preparation named `name` into the employee record
** (Appel_Methode_Preparation_Calcul_General). ORVALIS_OK when the entry returned true,
** ORVALIS_FAULT when it returned false (the record keeps what was written before the fault).
** A name the engine does not know does nothing and gives ORVALIS_OK. */
int orvalis_prepare(orvalis_engine *engine, const char *name, orvalis_employee *employee);

/* Computes the pay line named `name` (Appel_Methode_Calcul_General) into `line`, reading and
** writing `employee`. The three recordsets are the employee's variables of the month, of the
** month before, and his pay history; each may be null (absent). ORVALIS_OK or ORVALIS_FAULT
** as for orvalis_prepare(). */
int orvalis_calculate(orvalis_engine *engine, const char *name, orvalis_employee *employee,
                      orvalis_line *line, orvalis_recordset *var_salaries,
                      orvalis_recordset *var_salaries_histo, orvalis_recordset *salaries_histo);

/* ---- Operations called directly ---------------------------------------------------------- */

/* Calls one operation of the engine by name (the lookups, resolvers, utilities and public
** operations that case files call: the same table). `args_json` is a JSON array of the
** arguments in signature order, written as in a case file: numbers, texts, booleans, tables,
** "$salarie" for `employee`, "$rubrique" for `line`, "$absent" for a left-out optional
** argument. `employee` and `line` may be null when the operation takes no record; either one
** given must be live (ORVALIS_MISUSE otherwise), named by the arguments or not.
** On ORVALIS_OK, *result_json is {"result": R, "out": [...]} (the values the operation wrote
** into its output arguments, in signature order), owned by the engine. ORVALIS_FAULT when the
** operation faulted (orvalis_errmsg() gives the fault), ORVALIS_NOTFOUND for a name the
** engine's class does not have, ORVALIS_ERROR when the arguments cannot be read (the message
** names the argument). Operations called directly have no trap of their own: a fault may
** leave the records half-written. */
int orvalis_call(orvalis_engine *engine, const char *operation, const char *args_json,
                 orvalis_employee *employee, orvalis_line *line, const char **result_json);

/* The operations an engine's class can call, by index from 0 (the same names in the same
** order as orvalis_call() takes them). `signature_out` may be null. */
int orvalis_operation_count(orvalis_engine *engine, int *out);
int orvalis_operation_info(orvalis_engine *engine, int index, const char **name_out,
                           const char **signature_out);

/* ---- Records ----------------------------------------------------------------------------- */

/* A new employee record, every field at its default (0, empty text, false, no recordset). */
int orvalis_employee_new(orvalis_employee **out);
int orvalis_employee_free(orvalis_employee *employee);
/* A new pay line record, every field at its default. */
int orvalis_line_new(orvalis_line **out);
int orvalis_line_free(orvalis_line *line);

/* The fields of a kind of record (ORVALIS_EMPLOYEE, ORVALIS_LINE) by index from 0, in their
** declared order: name (static storage) and type (ORVALIS_T_...). */
int orvalis_field_count(int record_kind, int *out);
int orvalis_field_info(int record_kind, int index, const char **name_out, int *type_out);

/* Fields by exact name (case-sensitive). ORVALIS_NOTFOUND for a name the record does not
** have; ORVALIS_TYPE for a field of another type (integers: i... and l... fields;
** ORVALIS_RANGE for a value outside 16 or 32 bits). Texts are copied in; read texts follow the
** ownership rule above. A recordset field is set to the recordset given (shared; null for no
** recordset) and read as a new handle (null when the field holds none). */
int orvalis_employee_set_int(orvalis_employee *employee, const char *field, long long value);
int orvalis_employee_get_int(orvalis_employee *employee, const char *field, long long *out);
int orvalis_employee_set_double(orvalis_employee *employee, const char *field, double value);
int orvalis_employee_get_double(orvalis_employee *employee, const char *field, double *out);
int orvalis_employee_set_text(orvalis_employee *employee, const char *field, const char *value);
int orvalis_employee_get_text(orvalis_employee *employee, const char *field, const char **out);
int orvalis_employee_set_bool(orvalis_employee *employee, const char *field, int value);
int orvalis_employee_get_bool(orvalis_employee *employee, const char *field, int *out);
int orvalis_employee_set_recordset(orvalis_employee *employee, const char *field,
                                   orvalis_recordset *rs);
int orvalis_employee_get_recordset(orvalis_employee *employee, const char *field,
                                   orvalis_recordset **out);

/* The same for the pay line record. */
int orvalis_line_set_int(orvalis_line *line, const char *field, long long value);
int orvalis_line_get_int(orvalis_line *line, const char *field, long long *out);
int orvalis_line_set_double(orvalis_line *line, const char *field, double value);
int orvalis_line_get_double(orvalis_line *line, const char *field, double *out);
int orvalis_line_set_text(orvalis_line *line, const char *field, const char *value);
int orvalis_line_get_text(orvalis_line *line, const char *field, const char **out);
int orvalis_line_set_bool(orvalis_line *line, const char *field, int value);
int orvalis_line_get_bool(orvalis_line *line, const char *field, int *out);
int orvalis_line_set_recordset(orvalis_line *line, const char *field, orvalis_recordset *rs);
int orvalis_line_get_recordset(orvalis_line *line, const char *field, orvalis_recordset **out);

/* ---- Recordsets -------------------------------------------------------------------------- */

/* A new in-memory recordset with `ncolumns` declared columns and no row. Column names are
** matched whatever their case; an empty name or a name given twice is ORVALIS_MISUSE. */
int orvalis_recordset_new(const char *const *columns, int ncolumns, orvalis_recordset **out);
/* Releases the caller's share of the recordset. */
int orvalis_recordset_free(orvalis_recordset *rs);

/* Adds a row of nulls at the end and makes it current (AddNew). */
int orvalis_recordset_add_row(orvalis_recordset *rs);
/* Writes a cell of the current row by column name. ORVALIS_NOTFOUND for no such column,
** ORVALIS_MISUSE when no row is current. */
int orvalis_recordset_set_double(orvalis_recordset *rs, const char *column, double value);
int orvalis_recordset_set_text(orvalis_recordset *rs, const char *column, const char *value);
int orvalis_recordset_set_bool(orvalis_recordset *rs, const char *column, int value);
int orvalis_recordset_set_null(orvalis_recordset *rs, const char *column);
/* Puts the recordset on its first row, as a source a host opens stands (a no-op when empty). */
int orvalis_recordset_rewind(orvalis_recordset *rs);

/* Reading back, all rows, whatever filter the engine left: columns, rows, cells by index. */
int orvalis_recordset_column_count(orvalis_recordset *rs, int *out);
int orvalis_recordset_column_name(orvalis_recordset *rs, int column, const char **out);
int orvalis_recordset_row_count(orvalis_recordset *rs, int *out);
/* The type of a cell: ORVALIS_T_NULL, ORVALIS_T_DOUBLE, ORVALIS_T_TEXT or ORVALIS_T_BOOL. */
int orvalis_recordset_cell_type(orvalis_recordset *rs, int row, int column, int *out);
/* A number cell (ORVALIS_TYPE for another kind; a null cell is ORVALIS_TYPE too). */
int orvalis_recordset_get_double(orvalis_recordset *rs, int row, int column, double *out);
/* A cell as text: a text as it is, a number in its shortest form, a boolean "True"/"False",
** a null "" (check the type first to tell a null from an empty text). */
int orvalis_recordset_get_text(orvalis_recordset *rs, int row, int column, const char **out);
/* A boolean cell (ORVALIS_TYPE for another kind). */
int orvalis_recordset_get_bool(orvalis_recordset *rs, int row, int column, int *out);

/* ---- Case files -------------------------------------------------------------------------- */

/* Runs one case file given as JSON text (the same contract as `orvalis run`). On ORVALIS_OK
** *output_json is the output, to be freed with orvalis_free_text(). ORVALIS_ERROR when the case
** cannot be run as written: orvalis_errmsg(NULL) gives the line `orvalis run` would print. */
int orvalis_run_case(const char *case_json, char **output_json);
/* Frees a text that this library handed over (null does nothing). */
void orvalis_free_text(char *text);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* ORVALIS_ORVALIS_H_ */
