' Not run: these declarations were written by the header, without an Office to try them in.
'
' tivex for VBA in 64-bit Office, with the 64-bit tivex.dll: the functions of
' include/tivex.h, which says what each does. 32-bit Office cannot use them: there Declare
' calls by stdcall, the library is cdecl, and every call ends with error 49, "Bad DLL
' calling convention". 64-bit Windows has one convention only.
'
' Texts cross as addresses of bytes in UTF-8:
'
'     Dim iban() As Byte
'     iban = Utf8("DE89370400440532013000")
'     If tivex_iban_check(VarPtr(iban(0))) = 1 Then ...
'
' Keep such an array in a variable until the call has returned. What tivex_toXML and the
' bank lookups give is released with TivexTakeDocument and TivexRelease. Unless the DLL
' lies where Windows looks for it, call TivexLoad with its path before anything else.
Option Explicit

Public Const TIVEX_HEADER_VERSION_INT As Long = 22800
Public Const TIVEX_HEADER_VERSION_STR As String = "2.28"

Public Const TIVEX_OPTION_RULEBOOK As Long = 3

Public Const TIVEX_DIRECT_DEBIT As Long = 1
Public Const TIVEX_CREDIT_TRANSFER As Long = 2

Public Const TIVEX_DD_CORE As Long = 0
Public Const TIVEX_DD_COR1 As Long = 1
Public Const TIVEX_DD_B2B As Long = 2

Public Const TIVEX_CT_STANDARD As Long = 0
Public Const TIVEX_CT_INSTANT As Long = 1

Public Const TIVEX_SCHEME_CREDIT_TRANSFER As Long = &H01
Public Const TIVEX_SCHEME_DEBIT_CORE As Long = &H02
Public Const TIVEX_SCHEME_DEBIT_B2B As Long = &H08

Public Const TIVEX_ACCOUNT_INVALID As Long = -1
Public Const TIVEX_ACCOUNT_NOT_CHECKED As Long = 0
Public Const TIVEX_ACCOUNT_VALID As Long = 1
Public Const TIVEX_ACCOUNT_VALID_BY_VARIANT As Long = 2

Public Const TIVEX_CONVERSION_AS_GIVEN As Byte = 0
Public Const TIVEX_CONVERSION_ACCOUNT_REPLACED As Byte = 1
Public Const TIVEX_CONVERSION_BANK_UNKNOWN As Byte = 10
Public Const TIVEX_CONVERSION_ACCOUNT_INVALID As Byte = 11
Public Const TIVEX_CONVERSION_BANK_REFUSES As Byte = 12
Public Const TIVEX_CONVERSION_SUCCESSOR_USED As Byte = 13
Public Const TIVEX_CONVERSION_BANK_CODE_REPLACED As Byte = 15
Public Const TIVEX_CONVERSION_ACCOUNT_REFUSED As Byte = 50

Public Const TIVEX_FORMAT_MT940 As Long = 1
Public Const TIVEX_FORMAT_DETECT As Long = 1000
Public Const TIVEX_FORMAT_CAMT As Long = 1053
Public Const TIVEX_FORMAT_MT940_DIALECTS As Long = 1940

' Where the members of the records stand in 64-bit Windows, in bytes. Marked with *: the
' address of a text or of a record; with [n]: a text of up to n bytes that stands there.
Public Enum TivexBankInfo
    BankName = 0             ' *
    BankPostcode = 8         ' *
    BankCity = 16            ' *
    BankCountry = 24         ' *
    BankBic = 32             ' *
    BankFlags = 40           ' 16 bits
End Enum

Public Enum TivexStatement
    StmtReference = 0        ' *
    StmtAccount = 8          ' *
    StmtStatementNo = 16     ' Long
    StmtSequenceNo = 20      ' Long
    StmtOpeningDate = 24     ' struct tm, see TivexDate
    StmtClosingDate = 60     ' struct tm
    StmtOpeningBalance = 96  ' Double
    StmtClosingBalance = 104 ' Double
    StmtOpeningCurrency = 112 ' [3]
    StmtClosingCurrency = 116 ' [3]
    StmtFirstTx = 120        ' *
    StmtLastTx = 128         ' *
    StmtNext = 136           ' *
End Enum

Public Enum TivexEntry
    TxValueDate = 0          ' struct tm
    TxBookingDate = 36       ' struct tm
    TxReversal = 72          ' Byte
    TxAmount = 80            ' Double
    TxTypeCode = 88          ' [3]
    TxCustomerRef = 96       ' *
    TxBankRef = 104          ' *
    TxBookingText = 112      ' *
    TxPrimanota = 120        ' *
    TxGvc = 128              ' Long
    TxTextKeyExt = 132       ' Long
    TxBankCode = 136         ' [12]
    TxAccountNo = 149        ' [34]
    TxName = 184             ' [55]
    TxPurpose = 240          ' *
    TxEref = 248             ' *
    TxKref = 256             ' *
    TxMref = 264             ' *
    TxCred = 272             ' *
    TxDebt = 280             ' *
    TxPurp = 288             ' *
    TxCoam = 296             ' *
    TxOamt = 304             ' *
    TxSvwz = 312             ' *
    TxAbwa = 320             ' *
    TxAbwe = 328             ' *
    TxNext = 336             ' *
    TxFullName = 344         ' *
    TxReturnReason = 352     ' *
End Enum

Public Declare PtrSafe Function tivex_init Lib "tivex.dll" (ByVal selected As Long, ByVal value As LongPtr) As Long
Public Declare PtrSafe Sub tivex_cleanup Lib "tivex.dll" ()

Public Declare PtrSafe Function tivex_new Lib "tivex.dll" (ByVal kind As Long) As LongPtr
Public Declare PtrSafe Sub tivex_free Lib "tivex.dll" (ByVal msg As LongPtr)
Public Declare PtrSafe Function tivex_getError Lib "tivex.dll" (ByVal msg As LongPtr) As LongPtr
Public Declare PtrSafe Function tivex_setIBAN Lib "tivex.dll" (ByVal msg As LongPtr, ByVal iban As LongPtr) As Long
Public Declare PtrSafe Function tivex_setBIC Lib "tivex.dll" (ByVal msg As LongPtr, ByVal bic As LongPtr) As Long
Public Declare PtrSafe Function tivex_setName Lib "tivex.dll" (ByVal msg As LongPtr, ByVal holder As LongPtr) As Long
Public Declare PtrSafe Function tivex_setCreditorIdentifier Lib "tivex.dll" (ByVal msg As LongPtr, ByVal id As LongPtr) As Long
Public Declare PtrSafe Function tivex_setDate Lib "tivex.dll" (ByVal msg As LongPtr, ByVal day As LongPtr) As Long
Public Declare PtrSafe Function tivex_setDDType Lib "tivex.dll" (ByVal msg As LongPtr, ByVal code As Long) As Long
Public Declare PtrSafe Function tivex_setCTType Lib "tivex.dll" (ByVal msg As LongPtr, ByVal code As Long) As Long
Public Declare PtrSafe Function tivex_setCategoryPurpose Lib "tivex.dll" (ByVal msg As LongPtr, ByVal code As LongPtr) As Long
Public Declare PtrSafe Function tivex_setBatchBooking Lib "tivex.dll" (ByVal msg As LongPtr, ByVal mode As Byte) As Long
Public Declare PtrSafe Function tivex_setMessageId Lib "tivex.dll" (ByVal msg As LongPtr, ByVal id As LongPtr) As Long
Public Declare PtrSafe Function tivex_setStrict Lib "tivex.dll" (ByVal msg As LongPtr, ByVal mode As Byte) As Long
' list: the first of pairs of addresses, key and value; a key of 0 ends them. See TivexAdd.
Public Declare PtrSafe Function tivex_add Lib "tivex.dll" (ByVal msg As LongPtr, ByRef list As LongPtr) As Long
Public Declare PtrSafe Function tivex_toXML Lib "tivex.dll" (ByVal msg As LongPtr) As LongPtr

Public Declare PtrSafe Function tivex_iban_check Lib "tivex.dll" (ByVal iban As LongPtr) As Long

' info: receives the address of a record, to be read with the offsets of TivexBankInfo.
Public Declare PtrSafe Function tivex_bankid_check Lib "tivex.dll" (ByVal country As LongPtr, ByVal bank_code As LongPtr, ByRef info As LongPtr) As Long
Public Declare PtrSafe Function tivex_iban_getBank Lib "tivex.dll" (ByVal iban As LongPtr, ByRef info As LongPtr) As Long
Public Declare PtrSafe Function tivex_bic_getBank Lib "tivex.dll" (ByVal bic As LongPtr, ByRef info As LongPtr) As Long
Public Declare PtrSafe Function tivex_bankid_getMethod Lib "tivex.dll" (ByVal bank_code As LongPtr) As Long
' successor: an array of 9 bytes.
Public Declare PtrSafe Function tivex_bankid_getSuccessor Lib "tivex.dll" (ByVal bank_code As LongPtr, ByVal successor As LongPtr) As Long

Public Declare PtrSafe Function tivex_account_check Lib "tivex.dll" (ByVal account As LongPtr, ByVal method As Long) As Long
Public Declare PtrSafe Function tivex_account_check2 Lib "tivex.dll" (ByVal account As LongPtr, ByVal bank_code As LongPtr, ByVal method As Long) As Long

' iban: an array of 35 bytes; bic: of 12.
Public Declare PtrSafe Function tivex_iban_convert Lib "tivex.dll" (ByVal country As LongPtr, ByVal account As LongPtr, ByVal bank_code As LongPtr, ByVal iban As LongPtr, ByRef status As Byte) As Long
Public Declare PtrSafe Function tivex_iban_getBIC Lib "tivex.dll" (ByVal iban As LongPtr, ByVal bic As LongPtr) As Long

Public Declare PtrSafe Function tivex_stmt_parser_new Lib "tivex.dll" () As LongPtr
' path: as String, which VBA hands over in the code page of Windows, as the library wants it.
Public Declare PtrSafe Function tivex_stmt_parser_load Lib "tivex.dll" (ByVal parser As LongPtr, ByVal format As Long, ByVal path As String) As Long
Public Declare PtrSafe Function tivex_stmt_parser_getStatement Lib "tivex.dll" (ByVal parser As LongPtr) As LongPtr
Public Declare PtrSafe Function tivex_stmt_parser_getError Lib "tivex.dll" (ByVal parser As LongPtr) As LongPtr
Public Declare PtrSafe Function tivex_stmt_parser_getPending Lib "tivex.dll" (ByVal parser As LongPtr) As Long
Public Declare PtrSafe Sub tivex_stmt_parser_free Lib "tivex.dll" (ByVal parser As LongPtr)

' free() of the C run-time that the library is linked to.
Public Declare PtrSafe Sub TivexRelease Lib "msvcrt.dll" Alias "free" (ByVal block As LongPtr)

Private Const CP_UTF8 As Long = 65001
Private Declare PtrSafe Function WideCharToMultiByte Lib "kernel32" (ByVal page As Long, ByVal flags As Long, ByVal wide As LongPtr, ByVal wide_length As Long, ByVal bytes As LongPtr, ByVal byte_length As Long, ByVal default_char As LongPtr, ByVal default_used As LongPtr) As Long
Private Declare PtrSafe Function MultiByteToWideChar Lib "kernel32" (ByVal page As Long, ByVal flags As Long, ByVal bytes As LongPtr, ByVal byte_length As Long, ByVal wide As LongPtr, ByVal wide_length As Long) As Long
Private Declare PtrSafe Sub RtlMoveMemory Lib "kernel32" (ByRef target As Any, ByVal source As LongPtr, ByVal size As LongPtr)
Private Declare PtrSafe Function LoadLibraryW Lib "kernel32" (ByVal path As LongPtr) As LongPtr
Private Declare PtrSafe Function GetProcAddress Lib "kernel32" (ByVal library As LongPtr, ByVal symbol As String) As LongPtr

' The text in UTF-8, with a NUL.
Public Function Utf8(ByVal text As String) As Byte()
    Dim size As Long, bytes() As Byte
    size = WideCharToMultiByte(CP_UTF8, 0, StrPtr(text), Len(text), 0, 0, 0, 0)
    ReDim bytes(0 To size)
    If size > 0 Then WideCharToMultiByte CP_UTF8, 0, StrPtr(text), Len(text), VarPtr(bytes(0)), size, 0, 0
    Utf8 = bytes
End Function

' The text at an address, "" at 0. Texts of statements are in the bank's encoding: page is
' then 28591 for ISO 8859-1, for instance.
Public Function TextAt(ByVal address As LongPtr, Optional ByVal page As Long = CP_UTF8) As String
    Dim size As Long, text As String
    If address = 0 Then Exit Function
    size = MultiByteToWideChar(page, 0, address, -1, 0, 0)
    If size <= 1 Then Exit Function
    text = String$(size, vbNullChar)
    MultiByteToWideChar page, 0, address, -1, StrPtr(text), size
    TextAt = Left$(text, size - 1)
End Function

Public Function AddressAt(ByVal address As LongPtr) As LongPtr
    RtlMoveMemory AddressAt, address, 8
End Function

Public Function LongAt(ByVal address As LongPtr) As Long
    RtlMoveMemory LongAt, address, 4
End Function

Public Function IntegerAt(ByVal address As LongPtr) As Integer
    RtlMoveMemory IntegerAt, address, 2
End Function

Public Function ByteAt(ByVal address As LongPtr) As Byte
    RtlMoveMemory ByteAt, address, 1
End Function

Public Function DoubleAt(ByVal address As LongPtr) As Double
    RtlMoveMemory DoubleAt, address, 8
End Function

' The date of a struct tm; 0 for one that is not set.
Public Function TivexDate(ByVal address As LongPtr) As Date
    If LongAt(address + 12) = 0 Then Exit Function
    TivexDate = DateSerial(LongAt(address + 20) + 1900, LongAt(address + 16) + 1, LongAt(address + 12))
End Function

' Loads the library from a path; the declarations above then find it by its name.
Public Function TivexLoad(ByVal path As String) As Boolean
    TivexLoad = LoadLibraryW(StrPtr(path)) <> 0
End Function

' The library's data, which Declare cannot name.
Private Function DataAddress(ByVal symbol As String) As LongPtr
    DataAddress = GetProcAddress(LoadLibraryW(StrPtr("tivex.dll")), symbol)
End Function

Public Function TivexVersion() As Long
    TivexVersion = LongAt(DataAddress("tivex_version_int"))
End Function

Public Function TivexVersionText() As String
    TivexVersionText = TextAt(AddressAt(DataAddress("tivex_version_str")))
End Function

Public Function TivexEdition() As String
    TivexEdition = TextAt(AddressAt(DataAddress("tivex_edition_str")))
End Function

' Adds a transaction: TivexAdd(msg, "name", "Jutta M" & ChrW(252) & "ller", "iban", ...)
Public Function TivexAdd(ByVal msg As LongPtr, ParamArray keys_and_values() As Variant) As Long
    Dim list() As LongPtr, starts() As Long, texts() As Byte, one() As Byte
    Dim count As Long, used As Long, i As Long, j As Long
    count = (UBound(keys_and_values) + 1) \ 2 * 2
    ReDim list(0 To count + 1)
    ReDim starts(0 To count)
    ' All texts in one array; their addresses hold once it no longer grows.
    For i = 0 To count - 1
        one = Utf8(CStr(keys_and_values(i)))
        ReDim Preserve texts(0 To used + UBound(one))
        For j = 0 To UBound(one)
            texts(used + j) = one(j)
        Next j
        starts(i) = used
        used = used + UBound(one) + 1
    Next i
    For i = 0 To count - 1
        list(i) = VarPtr(texts(0)) + starts(i)
    Next i
    TivexAdd = tivex_add(msg, list(0))
End Function

' The document of a message, "" when it is refused: tivex_getError then says why.
Public Function TivexTakeDocument(ByVal msg As LongPtr) As String
    Dim document As LongPtr
    document = tivex_toXML(msg)
    TivexTakeDocument = TextAt(document)
    TivexRelease document
End Function
